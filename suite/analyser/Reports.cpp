// SPDX-License-Identifier: MIT
#include "Reports.h"
#include "AnalysisPlan.h"
#include "AnalysisResults.h"

#include <QFileInfo>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// How many there are of something, in words.
QString counted(int count, Severity severity)
{
    static constexpr std::array one = {
        "debug message", "information", "portability message", "performance message", "style message",
        "warning",       "error"};
    const QString name = QLatin1StringView(one[size_t(severity)]);
    const bool isMass = severity == Severity::Information;
    return QString::number(count) + u' ' + name + (count == 1 || isMass ? u""_s : u"s"_s);
}

QString rulesInForce(const AnalysisPlan& plan, const AnalysisResults& findings)
{
    QStringList names = findings.modules;
    for (const QString& personality : plan.personalities) {
        names += QFileInfo(personality).fileName();
    }
    return names.join(u", "_s);
}

QByteArray csvField(const QString& text)
{
    QByteArray field = text.toUtf8();
    if (field.contains(',') || field.contains('"') || field.contains('\n') || field.contains('\r')) {
        field = '"' + field.replace('"', "\"\"") + '"';
    }
    return field;
}

} // namespace

QStringList Reports::summary(const AnalysisPlan& plan, const AnalysisResults& findings)
{
    QStringList lines;
    lines += u"%1 of %2 sources analysed"_s.arg(findings.analysed).arg(plan.units.size());
    if (!plan.lastAnalysis.isEmpty()) {
        lines.last() += u" with "_s + plan.lastAnalysis;
    }
    lines += totals(findings);
    const QString inForce = rulesInForce(plan, findings);
    if (!inForce.isEmpty()) {
        lines += u"In force: "_s + inForce;
    }
    if (findings.hidden > 0) {
        lines += u"%1 messages are not shown, as the message personality says"_s.arg(findings.hidden);
    }
    if (!findings.unreadHeaders.empty()) {
        lines += unreadHeaders(findings);
    }
    if (!findings.notAnalysed.empty() && findings.analysed > 0) {
        lines += u"What only sources without an analysis use is told as unused"_s;
    }
    return lines;
}

QString Reports::unreadHeaders(const AnalysisResults& findings)
{
    constexpr qsizetype mostNames = 5;
    QStringList names;
    for (const UnreadHeader& header : findings.unreadHeaders) {
        names += header.sources == 1 ? header.name : u"%1 (in %2 sources)"_s.arg(header.name).arg(header.sources);
    }
    const qsizetype others = names.size() - mostNames;
    if (others > 0) {
        names = names.first(mostNames) + QStringList{u"%1 more"_s.arg(others)};
    }
    return names.isEmpty()
               ? QString()
               : u"Headers that are included and not found: %1. Code that depends on them may not have been "
                 "seen; build what makes them or name their folders, and analyse again"_s.arg(names.join(u", "_s));
}

QString Reports::totals(const AnalysisResults& findings)
{
    QStringList parts;
    for (int severity = int(Severity::Error); severity >= 0; --severity) {
        const int count = findings.countOf(Severity(severity));
        if (count > 0) {
            parts += counted(count, Severity(severity));
        }
    }
    return parts.isEmpty() ? u"no messages"_s : parts.join(u", "_s);
}

QString Reports::seenFrom(int sources)
{
    return sources > 1 ? u"seen from %1 sources"_s.arg(sources) : QString();
}

QByteArray Reports::text(const AnalysisPlan& plan, const AnalysisResults& findings)
{
    QString text = (plan.name.isEmpty() ? u"Results"_s : u"Results of "_s + plan.name) + u'\n';
    for (const QString& line : summary(plan, findings)) {
        text += line + u".\n"_s;
    }
    if (!findings.notAnalysed.empty()) {
        text += u"\nNot analysed:\n"_s;
    }
    for (const NotAnalysed& source : findings.notAnalysed) {
        text += u"  "_s + source.source + u": "_s + source.reason + u'\n';
    }
    QString file;
    for (const SeenFinding& seen : findings.findings) {
        if (seen.finding.file != file) {
            file = seen.finding.file;
            text += u'\n' + plan.shownName(file) + u'\n';
        }
        const QString seenBy = seenFrom(seen.sources);
        text += seen.finding.toLine() + (seenBy.isEmpty() ? u"\n"_s : u" ("_s + seenBy + u")\n"_s);
    }
    return text.toUtf8();
}

QByteArray Reports::csv(const AnalysisPlan&, const AnalysisResults& findings)
{
    QByteArray text("file,line,column,severity,id,message,sources\r\n");
    for (const NotAnalysed& source : findings.notAnalysed) {
        text += csvField(source.source) + ",,,not analysed,," + csvField(source.reason) + ",1\r\n";
    }
    for (const SeenFinding& seen : findings.findings) {
        const Finding& finding = seen.finding;
        text += csvField(finding.file) + ',' + QByteArray::number(finding.line) + ',' +
                QByteArray::number(finding.column) + ',' + severityName(finding.severity) + ',' + csvField(finding.id) +
                ',' + csvField(finding.text) + ',' + QByteArray::number(seen.sources) + "\r\n";
    }
    return text;
}

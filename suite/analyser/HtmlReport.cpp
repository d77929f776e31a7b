// SPDX-License-Identifier: MIT
#include "HtmlReport.h"
#include "AnalysisPlan.h"
#include "AnalysisResults.h"
#include "Reports.h"

#include <QUrl>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

// More than a text window lays out without stalling, it shows as text without links.
constexpr qsizetype longestPlainPage = 45'000;
constexpr qsizetype mostPlainReasons = 50;
constexpr qsizetype longestPlainText = 500;

constexpr Severity severities[] = {Severity::Error,       Severity::Warning,     Severity::Style, Severity::Performance,
                                   Severity::Portability, Severity::Information, Severity::Debug};

constexpr char style[] = R"(<style>
body { font-family: sans-serif; max-width: 75em; margin: 1em auto; padding: 0 1em; color: #222; background: #fff }
h2 { font-size: 1em; margin: 1.5em 0 .3em } ol { list-style: none; margin: 0; padding: 0 }
li { padding: .15em 0 } ol li { padding-left: 12.5em; text-indent: -12.5em } .place, b { display: inline-block; text-indent: 0 }
code, .place { font-family: monospace } .place { min-width: 6em } b { min-width: 7em; font-weight: 600 } .error b { color: #b00020 } .warning b { color: #a05a00 }
.id, .seen { color: #666 } .missing { background: #fff4e5; padding: .5em 1em }
@media (prefers-color-scheme: dark) { body { color: #ddd; background: #1b1b1b } a { color: #8ab4f8 }
.error b { color: #ff8a80 } .warning b { color: #ffb74d } .id, .seen { color: #999 } .missing { background: #3a2c12 } }
)";

QString severityText(Severity severity)
{
    return QLatin1StringView(severityName(severity));
}

class Page
{
public:
    Page(const AnalysisPlan& wholePlan, const AnalysisResults& allFindings)
        : plan(wholePlan)
        , findings(allFindings)
    {
    }

    QByteArray full()
    {
        QString rules = QString::fromLatin1(style);
        QString boxes;
        for (const Severity severity : severities) {
            const int count = findings.countOf(severity);
            if (count > 0) {
                const QString name = severityText(severity);
                rules += u"#show-%1:not(:checked) ~ section .%1 { display: none }\n"_s.arg(name);
                boxes += u"<input type=\"checkbox\" id=\"show-%1\" checked><label for=\"show-%1\"> %1 (%2)</label>\n"_s
                             .arg(name)
                             .arg(count);
            }
        }
        begin(rules + u"</style>\n"_s);
        text += boxes;
        QString file;
        for (const SeenFinding& seen : findings.findings) {
            if (seen.finding.file != file || file.isNull()) {
                openFile(seen.finding.file, file.isNull());
                file = seen.finding.file;
            }
            addItem(seen);
        }
        text += file.isNull() ? u""_s : u"</ol></section>\n"_s;
        return end();
    }

    QByteArray plain()
    {
        begin({}, mostPlainReasons);
        QString links;
        for (const Severity severity : severities) {
            const int count = findings.countOf(severity);
            if (count > 0) {
                links += u"<a href=\"#%1\">%1 (%2)</a> &nbsp; "_s.arg(severityText(severity)).arg(count);
            }
        }
        text += u"<p>"_s + links + u"</p>\n"_s;
        const qsizetype noteAt = text.size();
        size_t shown = 0;
        for (const Severity severity : severities) {
            shown += addSection(severity);
        }
        if (shown < findings.findings.size()) {
            text.insert(
                noteAt,
                u"<p>The %1 weightiest of %2 messages are shown. The report for the browser has all.</p>\n"_s.arg(shown)
                    .arg(findings.findings.size()));
        }
        return end();
    }

private:
    void begin(const QString& head, qsizetype mostReasons = std::numeric_limits<qsizetype>::max())
    {
        const QString title = (plan.name.isEmpty() ? u"Results"_s : u"Results of "_s + plan.name).toHtmlEscaped();
        text =
            u"<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title>\n%2</head><body>\n<h1>%1</h1>\n"_s
                .arg(title, head);
        for (const QString& line : Reports::summary(plan, findings)) {
            text += u"<p>"_s + line.toHtmlEscaped() + u".</p>\n"_s;
        }
        if (!findings.notAnalysed.empty()) {
            text += u"<div class=\"missing\"><h2>Not analysed (%1)</h2>\n<ul>\n"_s.arg(findings.notAnalysed.size());
            qsizetype told = 0;
            for (const NotAnalysed& source : findings.notAnalysed) {
                if (told++ == mostReasons) {
                    text += u"<li>and %1 more</li>\n"_s.arg(qsizetype(findings.notAnalysed.size()) - mostReasons);
                    break;
                }
                text += u"<li>"_s + link(source.source, plan.shownName(source.source)) + u": "_s +
                        shortened(source.reason) + u"</li>\n"_s;
            }
            text += u"</ul></div>\n"_s;
        }
    }

    QByteArray end()
    {
        text += u"</body></html>\n"_s;
        return text.toUtf8();
    }

    void openFile(const QString& file, bool isFirst)
    {
        text += (isFirst ? u"<section>"_s : u"</ol></section>\n<section>"_s) + u"<h2>"_s +
                link(file, plan.shownName(file)) + u"</h2><ol>\n"_s;
    }

    void addItem(const SeenFinding& seen)
    {
        const Finding& finding = seen.finding;
        const QString severity = severityText(finding.severity);
        const QString place = QString::number(finding.line) + u':' + QString::number(finding.column);
        text += u"<li class=\""_s + severity + u"\"><span class=\"place\">"_s +
                link(finding.file, place, finding.line) + u"</span> <b>"_s + severity + u"</b> "_s +
                finding.text.toHtmlEscaped() + u" <span class=\"id\">["_s + finding.id.toHtmlEscaped() + u"]</span>"_s +
                seenBy(seen) + u"</li>\n"_s;
    }

    static QString seenBy(const SeenFinding& seen)
    {
        return seen.sources > 1 ? u" <span class=\"seen\">"_s + Reports::seenFrom(seen.sources) + u"</span>"_s
                                : QString();
    }

    /// Gives how many messages it has shown.
    size_t addSection(Severity severity)
    {
        if (findings.countOf(severity) == 0 || text.size() > longestPlainPage) {
            return 0;
        }
        size_t shown = 0;
        text += u"<h2><a name=\"%1\">%1</a></h2>\n"_s.arg(severityText(severity));
        QString file;
        for (const SeenFinding& seen : findings.findings) {
            if (seen.finding.severity != severity || text.size() > longestPlainPage) {
                continue;
            }
            ++shown;
            if (seen.finding.file != file) {
                file = seen.finding.file;
                text += u"<h3>"_s + link(file, plan.shownName(file)) + u"</h3>\n"_s;
            }
            text += u"<p>"_s + link(file, u"line %1"_s.arg(seen.finding.line), seen.finding.line) + u": "_s +
                    shortened(seen.finding.text) + u" ["_s + seen.finding.id.toHtmlEscaped() + u']' + seenBy(seen) +
                    u"</p>\n"_s;
        }
        return shown;
    }

    static QString shortened(const QString& message)
    {
        return message.size() > longestPlainText ? message.first(longestPlainText).toHtmlEscaped() + u"…"_s
                                                 : message.toHtmlEscaped();
    }

    QString link(const QString& file, const QString& shown, int line = 0)
    {
        if (file != linkedFile) {
            linkedFile = file;
            linkedUrl = QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded()).toHtmlEscaped();
        }
        return u"<a href=\""_s + linkedUrl + (line > 0 ? u"#L"_s + QString::number(line) : QString()) + u"\">"_s +
               shown.toHtmlEscaped() + u"</a>"_s;
    }

    const AnalysisPlan& plan;
    const AnalysisResults& findings;
    QString text;
    QString linkedFile;
    QString linkedUrl;
};

} // namespace

QByteArray HtmlReport::page(const AnalysisPlan& plan, const AnalysisResults& findings)
{
    return Page(plan, findings).full();
}

QByteArray HtmlReport::plainPage(const AnalysisPlan& plan, const AnalysisResults& findings)
{
    return Page(plan, findings).plain();
}

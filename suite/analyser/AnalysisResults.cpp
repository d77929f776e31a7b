// SPDX-License-Identifier: MIT
#include "AnalysisResults.h"
#include "AnalysisPlan.h"
#include "ResultFile.h"
#include "UnreadHeaders.h"
#include "WholeProgram.h"

#include <QFile>
#include <QMap>

#include <algorithm>
#include <numeric>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

QString reasonOf(const Finding& finding, const QString& source)
{
    if (finding.isFailedRun()) {
        return finding.text;
    }
    const QString place = finding.file == source ? u"line %1"_s.arg(finding.line)
                                                 : u"%1 line %2"_s.arg(finding.file, QString::number(finding.line));
    return u"%1: %2 [%3]"_s.arg(place, finding.text, finding.id);
}

} // namespace

QList<Finding> readFindings(const QString& path)
{
    QList<Finding> findings;
    const QString text = QString::fromUtf8(ResultFile::read(path));
    for (const QStringView line : QStringView(text).split(u'\n', Qt::SkipEmptyParts)) {
        Finding finding;
        if (finding.fromLine(line.toString())) {
            findings += finding;
        }
    }
    return findings;
}

AnalysisResults::AnalysisResults(const AnalysisPlan& plan)
{
    for (const PlannedPart& part : plan.parts) {
        for (const QString& module : part.options.modules) {
            if (!modules.contains(module)) {
                modules += module;
            }
        }
    }
    for (size_t unit = 0; unit < plan.units.size(); ++unit) {
        addUnit(plan, unit);
    }
    addWholeProgram(plan);
    countUnreadHeaders(plan);
    sort();
}

int AnalysisResults::countOf(Severity severity) const
{
    return int(std::ranges::count(findings, severity, [](const SeenFinding& seen) { return seen.finding.severity; }));
}

void AnalysisResults::addUnit(const AnalysisPlan& plan, size_t index)
{
    const AnalysisUnit& unit = plan.units[index];
    if (!unit.obstacle.isEmpty()) {
        notAnalysed.push_back({unit.source, unit.obstacle});
        return;
    }
    currentUnit = index;
    const MessageSelection& selection = plan.parts[unit.part].options.messages;
    const QList<Finding> messages = readFindings(unit.output + u".err"_s);
    const auto obstacle = std::ranges::find_if(
        messages, [](const Finding& finding) { return finding.isFailedRun() || finding.isGivingUp(); });
    if (QFile::exists(unit.output + u".met"_s)) {
        ++analysed;
    } else if (obstacle == messages.cend()) {
        notAnalysed.push_back({unit.source, u"it has not been analysed yet"_s});
    } else {
        notAnalysed.push_back({unit.source, reasonOf(*obstacle, unit.source), obstacle->isFailedRun()});
    }
    for (const Finding& finding : messages) {
        if (finding.isFailedRun()) {
            continue;
        }
        if (selection.shows(finding)) {
            add(selection.shown(finding));
        } else {
            ++hidden;
        }
    }
}

void AnalysisResults::addWholeProgram(const AnalysisPlan& plan)
{
    currentUnit = plan.units.size();
    const QList<Finding> messages = readFindings(WholeProgram::resultFile(plan));
    for (const Finding& finding : messages) {
        const MessageSelection& selection = plan.parts.front().options.messages;
        if (selection.shows(finding)) {
            add(selection.shown(finding));
        } else {
            ++hidden;
        }
    }
}

void AnalysisResults::add(const Finding& finding)
{
    const auto [place, isNew] = [&] {
        const auto entry = known.constFind(finding);
        return std::pair(entry == known.cend() ? findings.size() : *entry, entry == known.cend());
    }();
    if (isNew) {
        known.insert(finding, place);
        findings.push_back({finding, 1});
        lastUnit.push_back(currentUnit);
    } else if (lastUnit[place] != currentUnit) {
        lastUnit[place] = currentUnit;
        ++findings[place].sources;
    }
}

void AnalysisResults::countUnreadHeaders(const AnalysisPlan& plan)
{
    QMap<QString, int> sources;
    for (const AnalysisUnit& unit : plan.units) {
        const QStringList names = UnreadHeaders::read(plan.workFolder() + u'/' + unit.folder);
        for (const QString& name : names) {
            ++sources[name];
        }
    }
    for (auto header = sources.cbegin(); header != sources.cend(); ++header) {
        unreadHeaders.push_back({header.key(), header.value()});
    }
    std::ranges::stable_sort(unreadHeaders, std::greater(), &UnreadHeader::sources);
}

void AnalysisResults::sort()
{
    known.clear();
    std::ranges::stable_sort(findings, [](const SeenFinding& left, const SeenFinding& right) {
        const Finding& a = left.finding;
        const Finding& b = right.finding;
        return std::tie(a.file, a.line, a.column) < std::tie(b.file, b.line, b.column);
    });
}

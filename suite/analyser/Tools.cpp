// SPDX-License-Identifier: MIT
#include "Tools.h"
#include "AnalysisPlan.h"
#include "AnalysisResults.h"
#include "AnalysisRun.h"
#include "BrowserReport.h"
#include "CommandLine.h"
#include "Failure.h"
#include "HtmlReport.h"
#include "Job.h"
#include "OptionReader.h"
#include "Reports.h"
#include "ResultFile.h"
#include "SarifReport.h"
#include "WholeProgram.h"

#include <QDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int good = 0;
constexpr int aboveLimit = 1;
constexpr int failed = 2;

void print(const QByteArray& bytes)
{
    if (std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout) != size_t(bytes.size()) ||
        std::fflush(stdout) != 0) {
        throw Failure{u"The output can not be written."_s};
    }
}

AnalysisPlan planOf(const CommandLine& line)
{
    if (!line.projectFile.isEmpty()) {
        return AnalysisPlan::ofProject(line.projectFile, line.words);
    }
    OptionReader reader;
    reader.takeWords(line.words);
    reader.finish();
    return AnalysisPlan::ofList(reader.options, line.forC);
}

int statusOf(const CommandLine& line, const AnalysisResults& findings)
{
    const bool isIncomplete = !findings.notAnalysed.empty();
    if (isIncomplete && !line.mayBeIncomplete) {
        return failed;
    }
    const bool isAbove = line.hasLimit && std::ranges::any_of(findings.findings, [&](const SeenFinding& seen) {
                             return seen.finding.severity >= line.limit;
                         });
    return isAbove ? aboveLimit : good;
}

QByteArray report(ReportForm form, const AnalysisPlan& plan, const AnalysisResults& findings)
{
    switch (form) {
    case ReportForm::Html:
        return HtmlReport::page(plan, findings);
    case ReportForm::PlainHtml:
        return HtmlReport::plainPage(plan, findings);
    case ReportForm::Csv:
        return Reports::csv(plan, findings);
    case ReportForm::Sarif:
        return sarifReport(plan, findings);
    default:
        return Reports::text(plan, findings);
    }
}

void writeReport(const CommandLine& line, const AnalysisPlan& plan, AnalysisResults& findings)
{
    std::erase_if(findings.findings, [&](const SeenFinding& seen) { return seen.finding.severity < line.least; });
    const QByteArray text = report(line.form, plan, findings);
    if (line.outputFile.isEmpty() || line.outputFile == u"-"_s) {
        print(text);
    } else {
        ResultFile::write(line.outputFile, text);
    }
}

int runAnalysis(const CommandLine& line)
{
    AnalysisPlan plan = planOf(line);
    const AnalysisEnd end = analyse(plan, line.run);
    if (end == AnalysisEnd::Stopped) {
        return failed;
    }
    AnalysisResults findings(plan);
    const int status = statusOf(line, findings);
    if (line.hasForm) {
        writeReport(line, plan, findings);
    }
    const bool isIncomplete = end == AnalysisEnd::Incomplete && !line.mayBeIncomplete;
    return end == AnalysisEnd::Nothing || isIncomplete ? failed : status;
}

int runReport(const CommandLine& line)
{
    const AnalysisPlan plan = planOf(line);
    AnalysisResults findings(plan);
    const int status = statusOf(line, findings);
    writeReport(line, plan, findings);
    return status;
}

int runBrowser(const CommandLine& line)
{
    const AnalysisPlan plan = planOf(line);
    const QString folder = line.outputFile.isEmpty() ? plan.workFolder() + u"/browser"_s : line.outputFile;
    const QString page = BrowserReport::write(plan, AnalysisResults(plan), QDir(folder).absolutePath());
    print(page.toUtf8() + '\n');
    if (line.opensBrowser && !BrowserReport::open(page)) {
        throw Failure{u"No browser can be opened: open %1 in one, or install the package xdg-utils."_s.arg(page)};
    }
    return good;
}

int runCount(const CommandLine& line)
{
    const AnalysisPlan plan = planOf(line);
    const AnalysisResults findings(plan);
    print(u"%1 messages in %2 analysed files: %3\n"_s.arg(findings.findings.size())
              .arg(findings.analysed)
              .arg(Reports::totals(findings))
              .toUtf8());
    return good;
}

QByteArray acrossText(const AnalysisPlan& plan)
{
    AnalysisResults findings(plan);
    const QList<Finding> across = readFindings(WholeProgram::resultFile(plan));
    std::erase_if(findings.findings, [&](const SeenFinding& seen) { return !across.contains(seen.finding); });
    return Reports::text(plan, findings);
}

int runAcross(const CommandLine& line)
{
    const AnalysisPlan plan = planOf(line);
    WholeProgram::check(plan);
    const QByteArray text = acrossText(plan);
    OptionReader reader;
    reader.takeWords(line.words);
    if (!reader.options.crossModuleFile.isEmpty()) {
        ResultFile::write(reader.options.crossModuleFile, text);
    }
    print(text);
    return good;
}

int tellStatus(const CommandLine& line)
{
    const AnalysisPlan plan = planOf(line);
    print(plan.statusText.toUtf8() + '\n');
    const AnalysisResults findings(plan);
    for (const NotAnalysed& source : findings.notAnalysed) {
        print(u"   Not analysed: %1: %2\n"_s.arg(source.source, source.reason).toUtf8());
    }
    if (!findings.unreadHeaders.empty()) {
        print(u"   %1\n"_s.arg(Reports::unreadHeaders(findings)).toUtf8());
    }
    return good;
}

// That a project can not be used is a status too, for those who look at it in a window.
int runStatus(const CommandLine& line)
{
    try {
        return tellStatus(line);
    } catch (const Failure& failure) {
        if (!line.isLauncher) {
            throw;
        }
        print(failure.text.toUtf8() + '\n');
        return good;
    }
}

} // namespace

int runTool(const CommandLine& line)
{
    switch (line.tool) {
    case Tool::Analyse:
        return runAnalysis(line);
    case Tool::Report:
        return runReport(line);
    case Tool::Browse:
        return runBrowser(line);
    case Tool::Count:
        return runCount(line);
    case Tool::WholeProgram:
        return runAcross(line);
    case Tool::Status:
        return runStatus(line);
    case Tool::Version:
        print("orv " ORV_VERSION "\n");
        return good;
    default:
        print(CommandLine::usage().toUtf8());
        return good;
    }
}

int runJob(const CommandLine& line)
{
    constexpr qsizetype wordsOfOrder = 4;
    const QStringList& words = line.words;
    if (words.isEmpty() || words.size() % wordsOfOrder != 0) {
        throw Failure{u"A job is started by Ninja only."_s};
    }
    std::vector<Job::Order> orders;
    for (qsizetype i = 0; i < words.size(); i += wordsOfOrder) {
        orders.push_back({words[i], words[i + 1], words[i + 2], words[i + 3]});
    }
    return Job::run(orders);
}

// SPDX-License-Identifier: MIT
#include "AnalysisRun.h"
#include "AnalyserRun.h"
#include "AnalysisPlan.h"
#include "AnalysisResults.h"
#include "BuildFile.h"
#include "Failure.h"
#include "Job.h"
#include "Reports.h"
#include "ResultFile.h"
#include "WholeProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t mostToldSources = 20;

void print(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
}

/// Ninja does not know of the metrics: they are missing on purpose where the analyser gave up.
void forgetLostResults(const AnalysisPlan& plan)
{
    for (const AnalysisUnit& unit : plan.units) {
        if (!unit.obstacle.isEmpty() || QFile::exists(unit.output + u".met"_s)) {
            continue;
        }
        const QList<Finding> findings = readFindings(unit.output + u".err"_s);
        if (std::ranges::none_of(findings, &Finding::isGivingUp) ||
            std::ranges::any_of(findings, &Finding::isFailedRun)) {
            QFile::remove(plan.workFolder() + u'/' + Job::stampName(unit.folder));
        }
    }
}

// The project tells what it was analysed with; its other lines stay as they are.
void noteAnalysis(AnalysisPlan& plan, const QString& version)
{
    if (plan.projectFile.isEmpty() || plan.lastAnalysis == version) {
        return;
    }
    plan.lastAnalysis = version;
    QByteArray text;
    bool isNoted = false;
    for (const QByteArray& line : ResultFile::read(plan.projectFile).split('\n')) {
        if (line.startsWith("*lastAnalysis=")) {
            continue;
        }
        // Read at the end of the files at the latest.
        if (!isNoted && line.startsWith("EndContainedFilesMarker")) {
            text += "*lastAnalysis=" + version.toUtf8() + '\n';
            isNoted = true;
        }
        text += line + '\n';
    }
    text.chop(1);
    if (isNoted) {
        ResultFile::write(plan.projectFile, text);
    }
}

void tellRest(const AnalysisResults& findings)
{
    size_t told = 0;
    for (const NotAnalysed& source : findings.notAnalysed) {
        if (told++ == mostToldSources) {
            print(u"  and %1 more; the report lists them all"_s.arg(findings.notAnalysed.size() - mostToldSources));
            break;
        }
        print(u"  not analysed: %1: %2"_s.arg(source.source, source.reason));
    }
}

AnalysisEnd judge(const AnalysisResults& findings, NinjaEnd end, bool isWhole)
{
    if (end == NinjaEnd::Stopped) {
        print(u"Stopped. The next analysis goes on from here."_s);
        return AnalysisEnd::Stopped;
    }
    if (findings.analysed == 0) {
        return AnalysisEnd::Nothing;
    }
    return findings.notAnalysed.empty() && isWhole ? AnalysisEnd::Complete : AnalysisEnd::Incomplete;
}

/// What the sources' own analyses have found is worth having without it.
bool checkWholeProgram(const AnalysisPlan& plan)
{
    try {
        WholeProgram::check(plan);
        return true;
    } catch (const Failure& failure) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(failure.text));
        return false;
    }
}

bool hasWork(const AnalysisPlan& plan)
{
    return std::ranges::any_of(plan.units, [](const AnalysisUnit& unit) { return unit.obstacle.isEmpty(); });
}

} // namespace

AnalysisEnd analyse(AnalysisPlan& plan, const RunSettings& settings)
{
    const QString version = Analyser::version();
    if (!QDir().mkpath(plan.workFolder())) {
        throw Failure{u"The folder %1 can not be made. Make %2 writable."_s.arg(plan.workFolder(), plan.outputFolder)};
    }
    QLockFile lock(plan.workFolder() + u"/lock"_s);
    lock.setStaleLockTime(0);
    if (!lock.tryLock(0)) {
        throw Failure{lock.error() == QLockFile::LockFailedError
                          ? u"%1 is being analysed already. Wait for that run, or stop it."_s.arg(plan.outputFolder)
                          : u"%1 can not be written. Make the folder writable."_s.arg(plan.workFolder())};
    }
    writeBuildFile(plan, version, QCoreApplication::applicationFilePath());
    forgetLostResults(plan);
    std::fflush(stdout);
    const NinjaEnd end = hasWork(plan) ? runNinja(plan.workFolder(), settings) : NinjaEnd::Done;
    const bool isWhole = end == NinjaEnd::Stopped || checkWholeProgram(plan);
    if (end != NinjaEnd::Stopped) {
        noteAnalysis(plan, version);
    }
    const AnalysisResults findings(plan);
    for (const QString& line : Reports::summary(plan, findings)) {
        print(line + u'.');
    }
    tellRest(findings);
    return judge(findings, end, isWhole);
}

// SPDX-License-Identifier: MIT
#include "AnalysisRun.h"
#include "AnalyserRun.h"
#include "AnalysisPlan.h"
#include "AnalysisResults.h"
#include "BuildFile.h"
#include "Failure.h"
#include "IncludeScan.h"
#include "Job.h"
#include "LibraryHints.h"
#include "OptionSet.h"
#include "Reports.h"
#include "ResultFile.h"
#include "RunFile.h"
#include "WholeProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QLockFile>

#include <algorithm>
#include <cstdio>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t mostToldSources = 20;

void print(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
}

/// Ninja goes by the time of a unit's stamp. It knows neither with which options that was made, nor of headers that
/// were not there, nor of the metrics, which are missing on purpose where the analyser gave up.
class Stamps
{
public:
    explicit Stamps(const AnalysisPlan& wholePlan)
        : plan(wholePlan)
    {
    }

    bool isTrue(const AnalysisUnit& unit, const UnitOptions& options)
    {
        QStringList lines =
            QString::fromUtf8(ResultFile::read(plan.workFolder() + u'/' + Job::stampName(unit.folder))).split(u'\n');
        if (lines.takeFirst() != options.file || scanOf(options.file).wouldFind(lines)) {
            return false;
        }
        if (QFile::exists(unit.output + u".met"_s)) {
            return true;
        }
        const QList<Finding> findings = readFindings(unit.output + u".err"_s);
        return std::ranges::any_of(findings, &Finding::isGivingUp) &&
               std::ranges::none_of(findings, &Finding::isFailedRun);
    }

private:
    IncludeScan& scanOf(const QString& options)
    {
        const auto known = scans.find(options);
        return known != scans.end()
                   ? known->second
                   : scans.emplace(options, OptionSet::fromFile(plan.workFolder() + u'/' + options).folders)
                         .first->second;
    }

    const AnalysisPlan& plan;
    std::map<QString, IncludeScan> scans;
};

/// The units to be analysed, by their place in the plan.
QList<size_t> staleUnits(const AnalysisPlan& plan, const std::vector<UnitOptions>& options)
{
    Stamps stamps(plan);
    QHash<QString, size_t> units;
    for (size_t i = 0; i < plan.units.size(); ++i) {
        const AnalysisUnit& unit = plan.units[i];
        if (!unit.obstacle.isEmpty()) {
            continue;
        }
        units.insert(unit.folder, i);
        if (!stamps.isTrue(unit, options[i])) {
            QFile::remove(plan.workFolder() + u'/' + Job::stampName(unit.folder));
        }
    }
    QList<size_t> stale;
    if (!units.isEmpty()) {
        const QStringList folders = NinjaRun::staleFolders(plan.workFolder());
        for (const QString& folder : folders) {
            stale += units.value(folder);
        }
    }
    std::ranges::sort(stale);
    return stale;
}

NinjaEnd runJobs(const AnalysisPlan& plan, const std::vector<UnitOptions>& options, const RunSettings& settings)
{
    const QList<size_t> units = staleUnits(plan, options);
    if (units.isEmpty()) {
        return NinjaEnd::Done;
    }
    writeRunFile(plan, options, units, QCoreApplication::applicationFilePath(), settings);
    qsizetype done = 0;
    return NinjaRun::run(plan.workFolder(), settings, [&](const QString& numbers) {
        for (const QString& number : numbers.split(u' ', Qt::SkipEmptyParts)) {
            print(u"[%1/%2] %3"_s.arg(++done)
                      .arg(units.size())
                      .arg(plan.shownName(plan.units.at(number.toULongLong()).source)));
        }
        std::fflush(stdout);
    });
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

void addTestFrameworks(AnalysisPlan& plan)
{
    for (const AnalysisUnit& unit : plan.units) {
        if (unit.obstacle.isEmpty()) {
            QStringList& libraries = plan.parts[unit.part].options.libraries;
            libraries += LibraryHints::testFrameworks(unit.source);
            libraries.removeDuplicates();
        }
    }
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
    addTestFrameworks(plan);
    const std::vector<UnitOptions> options = writeBuildFile(plan, version);
    const NinjaEnd end = runJobs(plan, options, settings);
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

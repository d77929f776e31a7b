// SPDX-License-Identifier: MIT
#include "Job.h"
#include "AnalyserRun.h"
#include "Failure.h"
#include "IncludeScan.h"
#include "OptionSet.h"
#include "ResultFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QByteArray database(const Job::Order& order, const OptionSet& options, const QString& moreDefines)
{
    const QJsonObject entry{{u"directory"_s, QFileInfo(order.source).absolutePath()},
                            {u"file"_s, order.source},
                            {u"command"_s, options.command + moreDefines}};
    return QJsonDocument(QJsonArray{entry}).toJson(QJsonDocument::Compact);
}

/// cppcheck would take an earlier result for this one's: it does not see that libraries or the platform changed.
void removeLeftovers(const QDir& folder)
{
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        const QString path = folder.filePath(name);
        if (path != Job::stampName(folder.path()) && path != Job::dependencyName(folder.path())) {
            QFile::remove(path);
        }
    }
}

/// cppcheck calls its record by the source, up to the first colon in its list.
void nameRecord(const QString& folder)
{
    const QByteArray list = ResultFile::read(folder + u"/files.txt"_s);
    const QString name = QFile::decodeName(list.left(list.indexOf(':')));
    const QString record = Job::recordName(folder);
    QFile::remove(record);
    QFile::rename(folder + u'/' + name, record);
}

/// True when the analyser saw no code: then it may have passed over an #error, which it tells only when a macro is
/// defined.
bool sawNothing(const QString& folder)
{
    const QByteArray record = ResultFile::read(Job::recordName(folder));
    return !record.contains("<FileInfo") && !record.contains("<error");
}

AnalyserRun analyseOnce(const Job::Order& order, const OptionSet& options, const QString& moreDefines)
{
    const QString project = order.folder + u"/compile_commands.json"_s;
    ResultFile::writeScratch(project, database(order, options, moreDefines));
    const QStringList fixed{u"--quiet"_s, u"--inline-suppr"_s,
                            u"--template={file}:{line}:{column}: {severity}: {message} [{id}]"_s,
                            u"--cppcheck-build-dir="_s + order.folder, u"--project="_s + project};
    AnalyserRun run = AnalyserRun::start(fixed + options.arguments, QDir::currentPath(), Analyser::timeLimit());
    nameRecord(order.folder);
    return run;
}

AnalyserRun analyse(const Job::Order& order, const OptionSet& options)
{
    removeLeftovers(QDir(order.folder));
    AnalyserRun run = analyseOnce(order, options, {});
    const bool mayHideAnError = !options.command.contains(" -D"_L1) && run.end == AnalyserRun::End::Normal;
    if (mayHideAnError && run.findings.isEmpty() && sawNothing(order.folder)) {
        run = analyseOnce(order, options, u" -D__ORV__"_s);
    }
    // Of one source these are a part only; the check of the whole program finds them all.
    run.findings.removeIf([](const Finding& finding) { return finding.id.startsWith("ctu"_L1); });
    return run;
}

QString failedRunId(AnalyserRun::End end)
{
    switch (end) {
    case AnalyserRun::End::Crashed:
        return QLatin1StringView(FailedRun::crashed);
    case AnalyserRun::End::TimedOut:
        return QLatin1StringView(FailedRun::timedOut);
    default:
        return QLatin1StringView(FailedRun::failed);
    }
}

QByteArray metrics(const Job::Order& order, const OptionSet& options, qsizetype messages)
{
    const QByteArray lines = QByteArray::number(ResultFile::read(order.source).count('\n'));
    return (options.forC ? "<S>STBUG " : "<S>STWMC ") + QByteArray::number(messages) + "\n<S>STLIN " + lines + '\n';
}

/// The old metrics go before anything new comes: a run that is killed between leaves a source that is not analysed.
void writeResults(const Job::Order& order, const OptionSet& options, const AnalyserRun& run)
{
    QFile::remove(order.output + u".met"_s);
    QByteArray messages;
    for (const Finding& finding : run.findings) {
        messages += finding.toLine().toUtf8() + '\n';
    }
    ResultFile::write(order.output + u".err"_s, messages);
    const bool isComplete =
        run.end == AnalyserRun::End::Normal && std::ranges::none_of(run.findings, &Finding::isGivingUp);
    if (isComplete) {
        ResultFile::write(order.output + u".met"_s, metrics(order, options, run.findings.size()));
    }
}

int fail(const Job::Order& order, const OptionSet& options, AnalyserRun& run, const QString& id)
{
    run.findings.prepend({order.source, 0, 0, Severity::Error, run.reason, id});
    writeResults(order, options, run);
    std::fprintf(stderr, "%s: %s\n", qPrintable(order.source), qPrintable(run.reason));
    return 1;
}

} // namespace

QString Job::stampName(const QString& folder)
{
    return folder + u"/done"_s;
}

QString Job::recordName(const QString& folder)
{
    return folder + u"/record.xml"_s;
}

QString Job::dependencyName(const QString& folder)
{
    return folder + u"/headers.d"_s;
}

int Job::run(const Order& order)
{
    const OptionSet options = OptionSet::fromFile(order.options);
    AnalyserRun result;
    if (!QFileInfo(order.source).isFile()) {
        result.end = AnalyserRun::End::Failed;
        result.reason = u"the source does not exist any more"_s;
        return fail(order, options, result, QLatin1StringView(FailedRun::missing));
    }
    if (!QDir().mkpath(order.folder)) {
        throw Failure{u"The folder %1 can not be made. Make its parent writable."_s.arg(order.folder)};
    }
    result = analyse(order, options);
    if (result.end != AnalyserRun::End::Normal) {
        return fail(order, options, result, failedRunId(result.end));
    }
    const QStringList files = IncludeScan(options.folders).filesOf(QStringList{order.source} + options.forced);
    ResultFile::writeScratch(dependencyName(order.folder), dependencyRule(stampName(order.folder), files));
    writeResults(order, options, result);
    ResultFile::writeScratch(stampName(order.folder), {});
    return 0;
}

// SPDX-License-Identifier: MIT
#include "Job.h"
#include "AnalyserRun.h"
#include "Failure.h"
#include "IncludeScan.h"
#include "OptionSet.h"
#include "ResultFile.h"
#include "SourceRuns.h"
#include "UnreadHeaders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <map>

using namespace Qt::StringLiterals;

namespace {

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

void fail(const SourceRuns::Task& task, AnalyserRun& run, const QString& id)
{
    run.findings.prepend({task.order.source, 0, 0, Severity::Error, run.reason, id});
    writeResults(task.order, *task.options, run);
    std::fprintf(stderr, "%s: %s\n", qPrintable(task.order.source), qPrintable(run.reason));
}

class Runner
{
public:
    int run(const std::vector<Job::Order>& orders)
    {
        std::vector<SourceRuns::Task> tasks;
        for (const Job::Order& order : orders) {
            attempt([&] {
                const SourceRuns::Task task{order, &optionsIn(order.options)};
                if (canBegin(task)) {
                    tasks.push_back(task);
                }
            });
        }
        std::vector<AnalyserRun> runs;
        if (tasks.size() > 1) {
            attempt([&] { runs = SourceRuns::together(tasks); });
        }
        for (size_t i = 0; i < tasks.size(); ++i) {
            attempt([&] { finish(tasks[i], i < runs.size() ? runs[i] : SourceRuns::alone(tasks[i])); });
        }
        return status;
    }

private:
    /// What keeps one source from its results must not cost the others theirs.
    template <typename Work>
    void attempt(Work&& work)
    {
        try {
            work();
        } catch (const Failure& failure) {
            std::fprintf(stderr, "%s\n", qUtf8Printable(failure.text));
            status = 1;
        }
    }

    const OptionSet& optionsIn(const QString& file)
    {
        const auto known = sets.find(file);
        return known != sets.end() ? known->second : sets.emplace(file, OptionSet::fromFile(file)).first->second;
    }

    bool canBegin(const SourceRuns::Task& task)
    {
        if (!QFileInfo(task.order.source).isFile()) {
            AnalyserRun run;
            run.end = AnalyserRun::End::Failed;
            run.reason = u"the source does not exist any more"_s;
            fail(task, run, QLatin1StringView(FailedRun::missing));
            status = 1;
            return false;
        }
        if (!QDir().mkpath(task.order.folder)) {
            throw Failure{u"The folder %1 can not be made. Make its parent writable."_s.arg(task.order.folder)};
        }
        return true;
    }

    void finish(const SourceRuns::Task& task, AnalyserRun result)
    {
        if (result.end != AnalyserRun::End::Normal) {
            fail(task, result, failedRunId(result.end));
            status = 1;
            return;
        }
        const Job::Order& order = task.order;
        IncludeScan scan(task.options->folders);
        const QStringList files = scan.filesOf(QStringList{order.source} + task.options->forced);
        ResultFile::writeScratch(Job::dependencyName(order.folder),
                                 dependencyRule(Job::stampName(order.folder), files));
        writeResults(order, *task.options, result);
        UnreadHeaders::write(order.folder, UnreadHeaders::of(task, result, scan));
        ResultFile::writeScratch(Job::stampName(order.folder),
                                 (QStringList{order.options} + scan.missing()).join(u'\n').toUtf8());
    }

    /// References to what it holds stay good.
    std::map<QString, OptionSet> sets;
    int status = 0;
};

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

int Job::run(const std::vector<Order>& orders)
{
    return Runner().run(orders);
}

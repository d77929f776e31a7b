// SPDX-License-Identifier: MIT
#include "batch/BatchLauncher.h"
#include "app/AppRegistry.h"
#include "app/ProcessEnvironment.h"
#include "batch/BatchArguments.h"
#include "batch/BatchMode.h"
#include "batch/BatchOutput.h"
#include "personality/MessageSelectionFile.h"
#include "personality/ProductNames.h"
#include "process/ExecutableLookup.h"
#include "process/StopSignals.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr int startWaitMs = 30000;
constexpr int killWaitMs = 30000;

const ApplicationRecord* launcherCalled(const QString& name)
{
    const auto& all = appRegistry->definitions.applications;
    const auto found = std::ranges::find_if(all, [&](const auto& one) { return one->title() == name; });
    return found == all.end() ? nullptr : found->get();
}

QStringList launcherNames()
{
    QStringList names;
    for (const auto& application : appRegistry->definitions.applications) {
        names += application->title();
    }
    return names;
}

} // namespace

BatchLauncher::BatchLauncher()
    : process(&appRegistry->childProcesses)
{
}

int BatchLauncher::execute(const BatchArguments& batch)
{
    const ApplicationRecord* const application = launcherCalled(batch.launcher);
    if (!application) {
        BatchOutput::complain(
            tr("-run: there is no launcher \"%1\"; known are: %2").arg(batch.launcher, launcherNames().join(u", "_s)));
        return BatchMode::WrongArguments;
    }
    if (!project.load(QFileInfo(batch.projectFile).absoluteFilePath(), appRegistry->projectFacts())) {
        BatchOutput::complain(tr("-prj: %1 is no project file: %2").arg(batch.projectFile, project.statusText));
        return BatchMode::WrongArguments;
    }
    const bool isC = batch.analyser == BatchArguments::Analyser::Open ? project.isCAnalyser()
                                                                      : batch.analyser == BatchArguments::Analyser::C;
    const Result<QString> program = programOf(*application, isC);
    if (!program.ok()) {
        BatchOutput::complain(program.problem);
        return BatchMode::WrongArguments;
    }
    const Result<QStringList> arguments = argumentsOf(*application, isC);
    if (!arguments.ok()) {
        BatchOutput::complain(arguments.problem);
        return BatchMode::Failed;
    }
    if (application->runFromExeDir) {
        process.setWorkingDirectory(QFileInfo(program.value).absolutePath());
    }
    return run(program.value, arguments.value, batch);
}

Result<QString> BatchLauncher::programOf(const ApplicationRecord& application, bool isC) const
{
    const QString& program = isC ? application.cExe : application.cppExe;
    if (program.isEmpty()) {
        return {{}, tr("-run: \"%1\" has no program for this analyser").arg(application.title())};
    }
    ExecutableLookup lookup(appRegistry->executableFolders());
    for (const QString& needed : application.dependency + QStringList{program}) {
        if (lookup.find(needed).isEmpty()) {
            return {{},
                    tr("-run: \"%1\" can not run: %2 is not found")
                        .arg(application.title(), QDir::toNativeSeparators(needed))};
        }
    }
    return {QFileInfo(lookup.find(program)).absoluteFilePath()};
}

Result<QStringList> BatchLauncher::argumentsOf(const ApplicationRecord& application, bool isC)
{
    const PersistedValues& values = appRegistry->values;
    QString messageFile;
    if (values.useMessageViewerMessages) {
        messageFile = appRegistry->CreateTempFileName(u".via"_s);
        const Result<void> written = writeMessageSelectionFile(
            values.project.isCAnalyser() ? values.cMessages : values.cppMessages, messageFile);
        if (messageFile.isEmpty() || !written.ok()) {
            return {{},
                    tr("A temporary file can not be written in %1. Make room there or make it writable.")
                        .arg(QDir::toNativeSeparators(QDir::tempPath()))};
        }
    }
    return project.expandLauncherArguments(application.exeargs, ProductNames::of(isC).shortName, messageFile,
                                           appRegistry->optionSources());
}

int BatchLauncher::run(const QString& program, const QStringList& arguments, const BatchArguments& batch)
{
    passOutputOn();
    SetProcessEnvironment(&process, true);
    StopSignals signals;
    const auto stop = [this] {
        stopped = true;
        process.stop(killWaitMs);
    };
    connect(&signals, &StopSignals::received, this, stop);
    connect(
        &process, &QProcess::finished, this, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
    appRegistry->Trace(program + u' ' + arguments.join(u' '));
    process.launch(program, arguments);
    if (!process.waitForStarted(startWaitMs)) {
        BatchOutput::complain(tr("%1 can not be started: %2").arg(program, process.errorString()));
        return BatchMode::Failed;
    }
    process.closeWriteChannel();
    if (batch.timeoutSeconds > 0) {
        QTimer::singleShot(std::chrono::seconds(batch.timeoutSeconds), this, stop);
    }
    QCoreApplication::exec();
    showOutput();
    terminal.finish();
    if (stopped || process.exitStatus() != QProcess::NormalExit) {
        BatchOutput::complain(stopped ? tr("%1 was stopped").arg(program)
                                      : tr("%1: %2").arg(program, process.errorString()));
        return BatchMode::Failed;
    }
    return process.exitCode();
}

void BatchLauncher::passOutputOn()
{
    // What is forwarded never comes here to be shown.
    process.setProcessChannelMode(TerminalOutput::isPossible() ? TerminalOutput::channelMode()
                                                               : QProcess::ForwardedChannels);
    connect(&process, &QProcess::readyReadStandardOutput, this, &BatchLauncher::showOutput);
}

void BatchLauncher::showOutput()
{
    terminal.add(decoder.decode(process.readAllStandardOutput()));
}

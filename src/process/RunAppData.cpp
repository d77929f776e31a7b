// SPDX-License-Identifier: MIT
#include "process/RunAppData.h"
#include "app/AppRegistry.h"
#include "app/ProductNames.h"
#include "definitions/PageData.h"
#include "dialogs/BusyDialog.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "personality/MessageSelectionFile.h"
#include "process/ExecutableLookup.h"
#include "process/ProcessEnvironment.h"
#include "project/Project.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int startWaitMs = 30000;
constexpr auto killDelay = 3s;

void traceStart(const QProcess& process, const QString& program, const QStringList& arguments)
{
    if (!appRegistry->traceOn) {
        return;
    }
    appRegistry->Trace(u"Orv Process Environment=-----------------------------"_s);
    const QStringList environment = process.environment();
    for (const QString& entry : environment) {
        if (entry.startsWith("ORV"_L1)) {
            appRegistry->Trace(entry);
        }
    }
    appRegistry->Trace(u"-----------------------------------End Environment"_s);
    appRegistry->Trace(u'"' + program + u"\" "_s + arguments.join(u' '));
}

} // namespace

bool StartProcess(QProcess& process, const QString& program, const QStringList& arguments, bool runInProgramFolder,
                  bool analyserVariables)
{
    const QString found = FindExecutable(program);
    // The child changes its folder before it looks for the program.
    const QString path = found.isEmpty() ? program : QFileInfo(found).absoluteFilePath();
    SetProcessEnvironment(&process, analyserVariables);
    if (runInProgramFolder) {
        process.setWorkingDirectory(QFileInfo(path).absolutePath());
    }
    traceStart(process, path, arguments);
    process.start(path, arguments, QIODevice::ReadWrite);
    if (!process.waitForStarted(startWaitMs)) {
        process.kill();
        return false;
    }
    qDebug("STARTED");
    return true;
}

RunAppData::RunAppData(PageData* owner)
    : page(owner)
{
    appRegistry->childProcesses += &process;
    busyTimer.setSingleShot(true);
    connect(&process, &QProcess::finished, this, &RunAppData::ActivateComplete);
    connect(&process, &QProcess::readyReadStandardOutput, this, &RunAppData::readOutput);
    connect(&process, &QProcess::readyReadStandardError, this, &RunAppData::readErrors);
    connect(&busyTimer, &QTimer::timeout, this, [this] {
        busyDialog = new BusyDialog(title(), MainWindow::current());
        connect(busyDialog, &QDialog::rejected, this, &RunAppData::Stop);
        busyDialog->show();
    });
}

RunAppData::~RunAppData()
{
    process.disconnect(this);
    if (appRegistry) {
        appRegistry->childProcesses.removeAll(&process);
    }
}

const QString& RunAppData::CurrentExe() const
{
    return page && page->isORVC ? cExe : cppExe;
}

bool RunAppData::ExecutablesFound()
{
    QStringList missing;
    if (FindExecutable(CurrentExe()).isEmpty()) {
        missing += QDir::toNativeSeparators(CurrentExe());
    }
    for (const QString& program : std::as_const(dependency)) {
        if (FindExecutable(program).isEmpty()) {
            missing += QDir::toNativeSeparators(program);
        }
    }
    disabledReason = missing.isEmpty()
                         ? QString()
                         : tr("Disabled, could not locate required executables:") + u' ' + missing.join(u',');
    return missing.isEmpty();
}

void RunAppData::attachButton(QPushButton* pushButton)
{
    button = pushButton;
    stopAction = new QAction(tr("Stop"), pushButton);
    stopAction->setVisible(false);
    connect(stopAction, &QAction::triggered, this, &RunAppData::Stop);
    pushButton->addAction(stopAction);
    pushButton->setContextMenuPolicy(Qt::ActionsContextMenu);
    updateToolTip();
}

void RunAppData::Activate()
{
    if (page) {
        page->ConditionsOnActivate(this);
    }
    if (CurrentExe().isEmpty()) {
        return;
    }
    if (isRunning()) {
        MessageBox::warn(MainWindow::current(), title(), tr("This application is already running"));
        return;
    }
    terminated = false;
    clearOutput();
    // Loading a large project takes its time: the user sees from the press on that something happens.
    lockWindow(busyCursor);
    QStringList arguments;
    const QString problem = prepareArguments(arguments);
    if (!problem.isEmpty()) {
        lockWindow(false);
        MessageBox::warn(MainWindow::current(), title(), problem);
        return;
    }
    awaitingEnd = true;
    markRunning(true);
    // A viewer that a tool leaves behind is what the user asked for; it goes when the program does.
    process.setLeftovers(ChildProcess::Leftovers::KeepUntilStopped);
    if (!StartProcess(process, CurrentExe(), arguments, runFromExeDir, true)) {
        ActivateComplete();
        return;
    }
    process.closeWriteChannel();
}

QString RunAppData::prepareArguments(QStringList& arguments)
{
    QString messageFile;
    QString problem = prepareMessageFile(messageFile);
    if (!problem.isEmpty()) {
        return problem;
    }
    // A page without a project of its own works on the one the suite used last.
    Project own;
    const bool ownProject = page && !page->projectFile.isEmpty();
    if (ownProject) {
        own.load(page->projectFile);
    }
    Project& project = ownProject ? own : appRegistry->values.project;
    const bool isC = ownProject ? page->isORVC : project.isCAnalyser();
    arguments = project.expandLauncherArguments(exeargs, ProductNames::of(isC).shortName, messageFile, &problem);
    return problem;
}

QString RunAppData::prepareMessageFile(QString& fileName)
{
    PersistedValues& values = appRegistry->values;
    if (!values.useMessageViewerMessages) {
        return {};
    }
    if (!values.project.isCAnalyser()) {
        values.cMessages = values.cppMessages;
    }
    fileName = appRegistry->CreateTempFileName(u".via"_s);
    if (!fileName.isEmpty() && writeMessageSelectionFile(values.cMessages, fileName)) {
        return {};
    }
    return tr("A temporary file can not be written in %1. Make room there or make it writable.")
        .arg(QDir::toNativeSeparators(QDir::tempPath()));
}

void RunAppData::ActivateComplete()
{
    if (!awaitingEnd) {
        return;
    }
    awaitingEnd = false;
    lockWindow(false);
    markRunning(false);
    if (terminated || appRegistry->closingDown) {
        return;
    }
    QWidget* window = MainWindow::current();
    if (window) {
        window->raise();
    }
    if (process.error() != QProcess::UnknownError || process.exitCode() != 0) {
        showFailure();
        return;
    }
    if (displayMode != NoDisplay) {
        if (!showOutput()) {
            return;
        }
    } else if (window) {
        window->activateWindow();
        window->raise();
    }
    if (page) {
        page->ConditionsOnComplete(this);
    }
}

void RunAppData::Terminate()
{
    Stop();
    const QList<QDialog*> dialogs = appRegistry->openDialogs;
    for (QDialog* dialog : dialogs) {
        dialog->close();
    }
}

void RunAppData::Stop()
{
    terminated = true;
    if (process.processId() == 0) {
        return;
    }
    // Its children may not listen although it does.
    process.setLeftovers(ChildProcess::Leftovers::Kill);
    process.terminateGroup();
    QTimer::singleShot(killDelay, &process, [this, pid = process.processId()] {
        if (process.processId() == pid) {
            process.killGroup();
        }
    });
}

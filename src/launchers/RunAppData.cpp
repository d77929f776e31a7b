// SPDX-License-Identifier: MIT
#include "launchers/RunAppData.h"
#include "app/AppRegistry.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "dialogs/PlainText.h"
#include "launchers/PageData.h"
#include "launchers/StartProcess.h"
#include "personality/MessageSelectionFile.h"
#include "personality/ProductNames.h"
#include "process/ExecutableLookup.h"
#include "project/Project.h"

#include <QAction>
#include <QDir>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto killDelay = 3s;
constexpr int windowWidth = 600;
constexpr int windowHeight = 600;
constexpr int messageHeight = 70;

} // namespace

RunAppData::RunAppData(PageData* owner)
    : process(&appRegistry->childProcesses)
    , page(owner)
    , output([](const QString& suffix) { return appRegistry->CreateTempFileName(suffix); })
{
    connect(&process, &QProcess::finished, this, &RunAppData::ActivateComplete);
    connect(&process, &QProcess::readyReadStandardOutput, this, &RunAppData::readOutput);
    connect(&process, &QProcess::readyReadStandardError, this, &RunAppData::readErrors);
    connect(&windowLock, &WindowLock::stopRequested, this, &RunAppData::Stop);
}

RunAppData::~RunAppData()
{
    process.disconnect(this);
}

const QString& RunAppData::CurrentExe() const
{
    return page && page->isORVC ? cExe : cppExe;
}

bool RunAppData::ExecutablesFound(ExecutableLookup& lookup)
{
    QStringList missing;
    if (lookup.find(CurrentExe()).isEmpty()) {
        missing += QDir::toNativeSeparators(CurrentExe());
    }
    for (const QString& program : std::as_const(dependency)) {
        if (lookup.find(program).isEmpty()) {
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
    output.start(displayMode);
    // Loading a large project takes its time: the user sees from the press on that something happens.
    if (busyCursor) {
        windowLock.lock(title());
    }
    const Result<QStringList> arguments = prepareArguments();
    if (!arguments.ok()) {
        windowLock.unlock();
        MessageBox::warn(MainWindow::current(), title(), arguments.problem);
        return;
    }
    awaitingEnd = true;
    markRunning(true);
    // A viewer that a tool leaves behind is what the user asked for; it goes when the program does.
    process.setLeftovers(ChildProcess::Leftovers::KeepUntilStopped);
    if (!StartProcess(process, CurrentExe(), arguments.value, runFromExeDir, true)) {
        ActivateComplete();
        return;
    }
    process.closeWriteChannel();
}

Result<QStringList> RunAppData::prepareArguments()
{
    const Result<QString> messageFile = prepareMessageFile();
    if (!messageFile.ok()) {
        return {{}, messageFile.problem};
    }
    // A page without a project of its own works on the one the suite used last.
    Project own;
    const bool ownProject = page && !page->projectFile.isEmpty();
    if (ownProject) {
        own.load(page->projectFile, appRegistry->projectFacts());
    }
    Project& project = ownProject ? own : appRegistry->values.project;
    const bool isC = ownProject ? page->isORVC : project.isCAnalyser();
    return project.expandLauncherArguments(exeargs, ProductNames::of(isC).shortName, messageFile.value,
                                           appRegistry->optionSources());
}

Result<QString> RunAppData::prepareMessageFile()
{
    PersistedValues& values = appRegistry->values;
    if (!values.useMessageViewerMessages) {
        return {};
    }
    if (!values.project.isCAnalyser()) {
        values.cMessages = values.cppMessages;
    }
    const QString fileName = appRegistry->CreateTempFileName(u".via"_s);
    if (!fileName.isEmpty() && writeMessageSelectionFile(values.cMessages, fileName).ok()) {
        return {fileName};
    }
    return {{},
            tr("A temporary file can not be written in %1. Make room there or make it writable.")
                .arg(QDir::toNativeSeparators(QDir::tempPath()))};
}

void RunAppData::ActivateComplete()
{
    if (!awaitingEnd) {
        return;
    }
    awaitingEnd = false;
    windowLock.unlock();
    markRunning(false);
    if (terminated || process.isClosingDown()) {
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

void RunAppData::readOutput()
{
    output.append(process.readAllStandardOutput());
}

void RunAppData::readErrors()
{
    output.appendErrors(process.readAllStandardError());
}

bool RunAppData::showOutput()
{
    readOutput();
    if (output.isEmpty()) {
        MessageBox::warn(MainWindow::current(), title(), tr("No data returned from process"));
        return false;
    }
    auto* dialog = new DisplayDialog(*appRegistry, title(), displayMode, windowWidth,
                                     displayMode == MessageDisplay ? messageHeight : windowHeight);
    // The window stays when it is closed; it goes with its launcher at the latest.
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    dialog->SetText(output.takeText());
    dialog->show();
    return true;
}

void RunAppData::showFailure()
{
    readErrors();
    QString text;
    switch (process.error()) {
    case QProcess::FailedToStart:
        text = tr("Failed to Start");
        break;
    case QProcess::Crashed:
        text = tr("Process Crashed");
        break;
    default:
        text = tr("Process Failed") + u" ["_s + QString::number(process.exitCode()) + u']';
    }
    QString details = process.error() == QProcess::UnknownError ? QString() : process.errorString() + u'\n';
    details = process.program() + u' ' + process.arguments().join(u' ') + u'\n' + details +
              QString::fromLocal8Bit(output.errorOutput());
    MessageBox::warn(MainWindow::current(), title(), text, details);
}

void RunAppData::markRunning(bool isRunning)
{
    if (!button) {
        return;
    }
    button->setText(isRunning ? title() + u'\n' + tr("running...") : name);
    stopAction->setVisible(isRunning);
    updateToolTip();
}

void RunAppData::enableButton(bool enabled)
{
    button->setEnabled(enabled);
    updateToolTip();
}

// A grey button says what it waits for.
void RunAppData::updateToolTip()
{
    QString text = disabledReason.isEmpty() ? description : disabledReason;
    if (stopAction->isVisible()) {
        text = tr("Running. Its context menu stops it.");
    } else if (page && disabledReason.isEmpty() && !button->isEnabled()) {
        const QStringList starters = page->StartersOf(this);
        if (!starters.isEmpty()) {
            const QString wait = tr("Available once this has succeeded: %1").arg(starters.join(u", "_s));
            text = text.isEmpty() ? wait : text + u'\n' + wait;
        }
    }
    button->setToolTip(PlainText::toolTip(text));
}

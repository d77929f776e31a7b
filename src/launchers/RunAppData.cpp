// SPDX-License-Identifier: MIT
#include "launchers/RunAppData.h"
#include "app/AppRegistry.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "dialogs/PlainText.h"
#include "dialogs/ProgressBar.h"
#include "launchers/LauncherArguments.h"
#include "launchers/PageData.h"
#include "launchers/RunIndicator.h"
#include "launchers/RunReport.h"
#include "launchers/StartProcess.h"
#include "personality/Result.h"
#include "process/ExecutableLookup.h"

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
    indicator = new RunIndicator(pushButton);
    connect(indicator, &RunIndicator::stopRequested, this, &RunAppData::Stop);
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
    const Result<QStringList> arguments = LauncherArguments::prepare(exeargs, page);
    if (!arguments.ok()) {
        windowLock.unlock();
        MessageBox::warnTogether(MainWindow::current(), title(), arguments.problem, {});
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
        showFailure(RunReport::failure(process));
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
    if (indicator) {
        indicator->showStopping();
    }
    updateText();
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
    if (output.append(process.readAllStandardOutput())) {
        showProgress();
    }
}

void RunAppData::readErrors()
{
    if (output.appendErrors(process.readAllStandardError())) {
        showProgress();
    }
}

void RunAppData::showProgress()
{
    windowLock.showProgress(output.progress());
    if (indicator && !terminated) {
        indicator->showProgress(output.progress());
        updateText();
    }
}

bool RunAppData::showOutput()
{
    readOutput();
    if (output.isEmpty()) {
        showFailure(tr("No data returned from process"));
        return false;
    }
    auto* dialog = new DisplayDialog(*appRegistry, title(), displayMode, windowWidth,
                                     displayMode == MessageDisplay ? messageHeight : windowHeight);
    // The window stays when it is closed; it goes with its launcher at the latest.
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    const QString text = output.takeText();
    dialog->setWholeFile(output.wholeFile());
    dialog->SetText(text);
    dialog->show();
    return true;
}

void RunAppData::showFailure(const QString& text)
{
    readOutput();
    readErrors();
    MessageBox::warnTogether(MainWindow::current(), title(), text, RunReport::reason(process),
                             RunReport::details(process, output));
}

void RunAppData::markRunning(bool isRunning)
{
    if (!button) {
        return;
    }
    stopAction->setVisible(isRunning);
    if (isRunning) {
        indicator->show(title());
    } else {
        indicator->hide();
    }
    updateText();
    updateToolTip();
}

void RunAppData::updateText()
{
    if (!button) {
        return;
    }
    if (!stopAction->isVisible()) {
        button->setText(name);
        return;
    }
    const Progress& progress = output.progress();
    const QString state = terminated           ? tr("stopping...")
                          : progress.isKnown() ? ProgressBar::countText(progress)
                                               : tr("running...");
    button->setText(title() + u'\n' + state);
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
        text = tr("Running. The small button on it and its context menu stop it.");
    } else if (page && disabledReason.isEmpty() && !button->isEnabled()) {
        const QStringList starters = page->StartersOf(this);
        if (!starters.isEmpty()) {
            const QString wait = tr("Available once this has succeeded: %1").arg(starters.join(u", "_s));
            text = text.isEmpty() ? wait : text + u'\n' + wait;
        }
    }
    button->setToolTip(PlainText::toolTip(text));
}

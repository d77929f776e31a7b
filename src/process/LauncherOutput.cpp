// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "dialogs/BusyDialog.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "process/RunAppData.h"

#include <QAction>
#include <QApplication>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// A quick tool needs no window that offers to stop it.
constexpr auto busyDelay = 700ms;
// What a window can still show with comfort.
constexpr qsizetype largestOutput = 64 * 1024 * 1024;
constexpr qsizetype keptErrors = 64 * 1024;
constexpr int windowWidth = 600;
constexpr int windowHeight = 600;
constexpr int messageHeight = 70;

} // namespace

QString RunAppData::title() const
{
    return QString(name).replace(u'\n', u' ');
}

// Taken as it comes: a full pipe would stop the tool, and an endless one must not fill the memory.
void RunAppData::readOutput()
{
    const QByteArray bytes = process.readAllStandardOutput();
    if (displayMode == NoDisplay) {
        return;
    }
    const qsizetype taken = std::min(bytes.size(), largestOutput - output.size());
    output += bytes.first(taken);
    outputDropped += bytes.size() - taken;
}

void RunAppData::readErrors()
{
    errors += process.readAllStandardError();
    if (errors.size() > keptErrors) {
        errors = errors.last(keptErrors);
    }
}

bool RunAppData::showOutput()
{
    readOutput();
    if (output.isEmpty()) {
        MessageBox::warn(MainWindow::current(), title(), tr("No data returned from process"));
        return false;
    }
    QString text = QString::fromLocal8Bit(output);
    output.clear();
    if (outputDropped > 0) {
        text += u'\n' + tr("[The output is cut here: %1 more bytes are not shown]").arg(outputDropped);
    }
    auto* dialog = new DisplayDialog(title(), displayMode, windowWidth,
                                     displayMode == MessageDisplay ? messageHeight : windowHeight);
    // The window stays when it is closed; it goes with its launcher at the latest.
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    dialog->SetText(text);
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
    details =
        process.program() + u' ' + process.arguments().join(u' ') + u'\n' + details + QString::fromLocal8Bit(errors);
    MessageBox::warn(MainWindow::current(), title(), text, details);
}

void RunAppData::lockWindow(bool lock)
{
    if (lock == locked) {
        return;
    }
    locked = lock;
    if (lock) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        busyTimer.start(busyDelay);
    } else {
        QApplication::restoreOverrideCursor();
        busyTimer.stop();
        delete busyDialog;
    }
    if (QWidget* window = MainWindow::current()) {
        window->setEnabled(!lock);
    }
}

void RunAppData::markRunning(bool isRunning)
{
    if (!button) {
        return;
    }
    button->setText(isRunning ? name + u'\n' + tr("running...") : name);
    stopAction->setEnabled(isRunning);
}

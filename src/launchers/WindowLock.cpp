// SPDX-License-Identifier: MIT
#include "launchers/WindowLock.h"
#include "dialogs/BusyDialog.h"
#include "dialogs/MainWindow.h"

#include <QApplication>

#include <chrono>

using namespace std::chrono_literals;

namespace {

// A quick tool needs no window that offers to stop it.
constexpr auto busyDelay = 700ms;

void enableMainWindow(bool enabled)
{
    if (QWidget* window = MainWindow::current()) {
        window->setEnabled(enabled);
    }
}

} // namespace

WindowLock::WindowLock(QObject* parent)
    : QObject(parent)
{
    busyTimer.setSingleShot(true);
    connect(&busyTimer, &QTimer::timeout, this, &WindowLock::showBusyDialog);
}

WindowLock::~WindowLock() = default;

void WindowLock::lock(const QString& tool)
{
    if (locked) {
        return;
    }
    locked = true;
    if (const QWidget* window = MainWindow::current()) {
        focused = window->focusWidget();
    }
    toolName = tool;
    latest = {};
    QApplication::setOverrideCursor(Qt::WaitCursor);
    busyTimer.start(busyDelay);
    enableMainWindow(false);
}

void WindowLock::unlock()
{
    if (!locked) {
        return;
    }
    locked = false;
    QApplication::restoreOverrideCursor();
    busyTimer.stop();
    delete busyDialog;
    enableMainWindow(true);
    // A disabled window loses it, and the next Enter would go to Finish.
    if (focused) {
        focused->setFocus();
    }
}

void WindowLock::showBusyDialog()
{
    busyDialog = new BusyDialog(toolName, MainWindow::current());
    connect(busyDialog, &QDialog::rejected, this, &WindowLock::stopRequested);
    busyDialog->showProgress(latest);
    busyDialog->show();
}

void WindowLock::showProgress(const Progress& progress)
{
    latest = progress;
    if (busyDialog) {
        busyDialog->showProgress(progress);
    }
}

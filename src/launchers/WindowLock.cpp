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

void WindowLock::lock(const QString& tool)
{
    if (locked) {
        return;
    }
    locked = true;
    toolName = tool;
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
}

void WindowLock::showBusyDialog()
{
    busyDialog = new BusyDialog(toolName, MainWindow::current());
    connect(busyDialog, &QDialog::rejected, this, &WindowLock::stopRequested);
    busyDialog->show();
}

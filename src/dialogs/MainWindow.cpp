// SPDX-License-Identifier: MIT
#include "dialogs/MainWindow.h"

#include <QPointer>
#include <QWidget>

namespace {

QPointer<QWidget>& mainWindow()
{
    static QPointer<QWidget> window;
    return window;
}

} // namespace

QWidget* MainWindow::current()
{
    return mainWindow();
}

void MainWindow::set(QWidget* window)
{
    mainWindow() = window;
}

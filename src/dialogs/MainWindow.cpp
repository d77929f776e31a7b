// SPDX-License-Identifier: MIT
#include "dialogs/MainWindow.h"

#include <QCoreApplication>
#include <QKeyEvent>
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

bool MainWindow::takesHelpKey(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_F1 && event.key() != Qt::Key_Help) {
        return false;
    }
    QKeyEvent copy(event.type(), event.key(), event.modifiers());
    if (QWidget* window = current()) {
        QCoreApplication::sendEvent(window, &copy);
    }
    return true;
}

void MainWindow::set(QWidget* window)
{
    mainWindow() = window;
}

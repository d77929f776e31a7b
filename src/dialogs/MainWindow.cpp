// SPDX-License-Identifier: MIT
#include "dialogs/MainWindow.h"
#include "dialogs/XpmImage.h"

#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

using namespace Qt::StringLiterals;

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

// Without its hint Windows greys the button that closes; elsewhere it is there all the same.
Qt::WindowFlags MainWindow::frame()
{
    const Qt::WindowFlags given =
        Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;
#ifdef Q_OS_WIN
    return given | Qt::WindowCloseButtonHint;
#else
    return given;
#endif
}

QIcon MainWindow::icon()
{
    return XpmImage::load(u":/AKOVRAIcon.xpm"_s);
}

void MainWindow::set(QWidget* window)
{
    mainWindow() = window;
}

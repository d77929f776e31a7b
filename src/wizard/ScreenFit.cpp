// SPDX-License-Identifier: MIT
#include "wizard/ScreenFit.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

// A position and a size may have been stored for a screen that is gone or was larger, and a page may want more room
// than there is. The frame is not known before the window is shown.
void ScreenFit::apply(QWidget& window)
{
    const QScreen* screen = QGuiApplication::screenAt(window.geometry().center());
    const QRect available = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QSize frame = window.frameGeometry().size() - window.size();
    const int title = std::max(frame.height(), window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize most = available.size() - QSize(frame.width(), title);
    // A maximised window is the window manager's to fit.
    if (!window.isMaximized() && window.size() != window.size().boundedTo(most)) {
        window.resize(window.size().boundedTo(most));
    }
    const QPoint last(available.right() + 1 - window.width() - frame.width(),
                      available.bottom() + 1 - window.height() - title);
    const QPoint place(std::clamp(window.x(), available.left(), std::max(available.left(), last.x())),
                       std::clamp(window.y(), available.top(), std::max(available.top(), last.y())));
    if (!window.isMaximized() && place != window.pos()) {
        window.move(place);
    }
}

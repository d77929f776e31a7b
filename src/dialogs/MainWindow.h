// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QIcon;
class QKeyEvent;
class QWidget;

/// The program's one main window: parent of boxes and dialogs that are opened from anywhere.
namespace MainWindow {

/// None before the window is made and after it is gone.
QWidget* current();
void set(QWidget* window);
/// Hands F1 and the Help key, pressed in another window, to the main window. True when it was such a key.
bool takesHelpKey(const QKeyEvent& event);
/// What the frames of the program's windows hold.
Qt::WindowFlags frame();
/// What stands in the title bars of the program's windows.
QIcon icon();

} // namespace MainWindow

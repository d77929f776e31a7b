// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// The program's one main window: parent of boxes and dialogs that are opened from anywhere.
namespace MainWindow {

/// None before the window is made and after it is gone.
QWidget* current();
void set(QWidget* window);

} // namespace MainWindow

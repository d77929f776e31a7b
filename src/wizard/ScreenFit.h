// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Keeps windows on the screen.
namespace ScreenFit {

/// Makes the window no larger than its screen, and moves its title bar and all of it there.
void apply(QWidget& window);

} // namespace ScreenFit

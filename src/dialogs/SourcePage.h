// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A text file as html that shows it as it is: its lines with their numbers, as many around one as are laid out at
/// once.
namespace SourcePage {

/// The anchor of a line, as links to it have it: "L12".
QString anchor(int line);
/// The line that an anchor means, 0 for none.
int lineOf(const QString& anchor);
/// Empty when the file can not be read, or is no text. The line is shown marked; 0: the beginning.
QString html(const QString& fileName, int line);

} // namespace SourcePage

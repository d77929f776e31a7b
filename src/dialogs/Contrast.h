// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// How well colours can be told from each other, on whatever palette the desktop has.
namespace Contrast {

/// From here on a text can be read.
inline constexpr double least = 4.5;

/// That of two colours: 1 for equal ones, 21 for black and white.
double between(const QColor& first, const QColor& second);

/// The colour, moved towards another one until it can be read on the background.
QColor readable(const QColor& colour, const QColor& background, const QColor& towards);

/// The red of what is wrong: the usual one on a light background, a lighter one on a dark one.
QColor alarm(const QColor& background);

} // namespace Contrast

// SPDX-License-Identifier: MIT
#pragma once

class QColor;
class QPixmap;

/// The picture in the wizard's header.
namespace Logo {

/// It is drawn on white; for another background the white around it and under its shadow is taken away.
QPixmap on(const QColor& background);

} // namespace Logo

// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/Contrast.h"

#include <QImage>
#include <QPixmap>
#include <QSignalBlocker>
#include <QVariant>
#include <QWidget>

#include <algorithm>

/// The contrast of a control's text with what is behind it, as they are painted; 21 when nothing is written.
inline double paintedContrast(QWidget& control)
{
    const QSignalBlocker quiet(control);
    const QVariant text = control.property("text");
    const QImage written = control.grab().toImage();
    control.setProperty("text", QString());
    const QImage blank = control.grab(QRect(QPoint(), control.size())).toImage();
    control.setProperty("text", text);
    // Thin letters hardly ever have a pixel all in their colour.
    double best = 0;
    QColor ink;
    QRect place;
    for (int y = 0; y < std::min(written.height(), blank.height()); ++y) {
        for (int x = 0; x < std::min(written.width(), blank.width()); ++x) {
            const QColor colour = written.pixelColor(x, y);
            if (colour == blank.pixelColor(x, y)) {
                continue;
            }
            place |= QRect(x, y, 1, 1);
            if (const double contrast = Contrast::between(colour, blank.pixelColor(x, y)); contrast > best) {
                best = contrast;
                ink = colour;
            }
        }
    }
    double worst = 21;
    for (int y = place.top(); !place.isNull() && y <= place.bottom(); ++y) {
        worst = std::min(worst, Contrast::between(ink, blank.pixelColor(place.center().x(), y)));
    }
    return worst;
}

// SPDX-License-Identifier: MIT
#include "wizard/Logo.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPixmap>
#include <QPoint>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// What is around the drawing: grey, as the shadow is, or white. The drawing has dark and coloured edges.
bool isAround(const QColor& colour)
{
    constexpr int darkestShadow = 90;
    constexpr int greyOfJpeg = 24;
    const auto [least, most] = std::minmax({colour.red(), colour.green(), colour.blue()});
    return colour.alpha() == 255 && least > darkestShadow && most - least < greyOfJpeg;
}

// From the corners to the drawing the lightness becomes transparency.
void clearAround(QImage& image)
{
    QList<QPoint> open{
        {0, 0}, {image.width() - 1, 0}, {0, image.height() - 1}, {image.width() - 1, image.height() - 1}};
    while (!open.isEmpty()) {
        const QPoint place = open.takeLast();
        if (!image.valid(place) || !isAround(image.pixelColor(place))) {
            continue;
        }
        // At most 254, as 255 is what has not been here yet.
        image.setPixelColor(place, QColor(0, 0, 0, std::min(254, 255 - qGray(image.pixel(place)))));
        open << place + QPoint(1, 0) << place - QPoint(1, 0) << place + QPoint(0, 1) << place - QPoint(0, 1);
    }
}

} // namespace

QPixmap Logo::on(const QColor& background)
{
    // With its format named, Qt does not load every plugin to find out.
    QPixmap logo(u":/logo_shadow.jpg"_s, "JPG");
    if (background.rgb() == QColor(Qt::white).rgb()) {
        return logo;
    }
    QImage image = logo.toImage().convertToFormat(QImage::Format_ARGB32);
    clearAround(image);
    return QPixmap::fromImage(image);
}

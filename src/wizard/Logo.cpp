// SPDX-License-Identifier: MIT
#include "wizard/Logo.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QResource>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The decoded points of :/logo_shadow.jpg: to load the decoder is what takes most of its time, and the window would
// wait for it.
QImage drawing()
{
    constexpr int side = 60;
    constexpr qsizetype bytesPerLine = qsizetype(3) * side;
    const QByteArray points = QResource(u":/logo_shadow.rgb"_s).uncompressedData();
    return points.size() == side * bytesPerLine ? QImage(reinterpret_cast<const uchar*>(points.constData()), side, side,
                                                         bytesPerLine, QImage::Format_RGB888)
                                                      .convertToFormat(QImage::Format_RGB32)
                                                : QImage();
}

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
    QImage image = drawing();
    if (background.rgb() == QColor(Qt::white).rgb()) {
        return QPixmap::fromImage(image);
    }
    image.convertTo(QImage::Format_ARGB32);
    clearAround(image);
    return QPixmap::fromImage(image);
}

// SPDX-License-Identifier: MIT
#include "launchers/ButtonStyle.h"

#include <QBitmap>
#include <QColor>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int shade = 140;
// Of the colours on which black can be read, on a scale to 255.
constexpr int darkest = 110;

QString gradient(const QColor& colour)
{
    return u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "_s + colour.name() + u", stop: 1 "_s +
           colour.darker(shade).name() + u')';
}

// The images are drawn in black.
QPixmap inColour(const QPixmap& arrow, const QColor& colour)
{
    QImage image = arrow.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    painter.end();
    return QPixmap::fromImage(image);
}

} // namespace

void SetButtonStyle(QPushButton* button, const QString& colour)
{
    QColor base(235, 235, 235);
    if (const QColor wanted(colour); !colour.isEmpty() && wanted.isValid()) {
        base = wanted;
    }
    // The colour does not follow the desktop's palette, so the text must not either.
    QPalette palette = button->palette();
    palette.setColor(QPalette::ButtonText, qGray(base.rgb()) >= darkest ? Qt::black : Qt::white);
    // The usual grey of a disabled text can not be read on most colours.
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(105, 105, 105));
    button->setPalette(palette);
    button->setStyleSheet(u"QPushButton { background-color: "_s + gradient(base) +
                          u"; border-style: outset; border-width: 1px; border-radius: 4px; border-color: black; "
                          "font: 13px; padding: 1px;} QPushButton:hover {background-color: "_s +
                          gradient(base.lighter(shade)) + u"} QPushButton:pressed {background-color: "_s +
                          gradient(base.darker(shade)) + u"} "_s);
}

void SetArrowImage(QLabel* label, const QString& resource)
{
    QPixmap arrow(resource, "XPM");
    if (!arrow.isNull()) {
        arrow.setMask(arrow.createMaskFromColor(Qt::white));
        arrow = inColour(arrow, label->palette().color(QPalette::WindowText));
    }
    label->setAlignment(Qt::AlignCenter);
    label->setPixmap(arrow);
}

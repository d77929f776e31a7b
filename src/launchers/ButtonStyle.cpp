// SPDX-License-Identifier: MIT
#include "launchers/ButtonStyle.h"

#include <QBitmap>
#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int shade = 140;

QString gradient(const QColor& colour)
{
    return u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "_s + colour.name() + u", stop: 1 "_s +
           colour.darker(shade).name() + u')';
}

} // namespace

void SetButtonStyle(QPushButton* button, const QString& colour)
{
    // The usual grey of a disabled text can not be read on most colours.
    QPalette palette = button->palette();
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(105, 105, 105));
    button->setPalette(palette);
    QColor base(235, 235, 235);
    if (const QColor wanted(colour); !colour.isEmpty() && wanted.isValid()) {
        base = wanted;
    }
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
    }
    label->setAlignment(Qt::AlignCenter);
    label->setPixmap(arrow);
}

// SPDX-License-Identifier: MIT
#include "launchers/ButtonStyle.h"
#include "dialogs/Contrast.h"
#include "launchers/ArrowImage.h"

#include <QColor>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int shade = 140;

/// A button's surface in one of its states, and the colour in which its text can be read from top to bottom.
struct Surface
{
    explicit Surface(const QColor& colour)
        : text(Contrast::between(colour, Qt::white) >= Contrast::least ? Qt::white : Qt::black)
        , top(colour)
        // On most colours this is the usual shade; on some no text could be read on it.
        , bottom(Contrast::readable(colour.darker(shade), text, colour))
    {
    }

    QString gradient() const
    {
        return u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "_s + top.name() + u", stop: 1 "_s +
               bottom.name() + u')';
    }

    QColor text;
    QColor top;
    QColor bottom;
};

} // namespace

void SetButtonStyle(QPushButton* button, const QString& colour)
{
    QColor base(235, 235, 235);
    if (const QColor wanted(colour); !colour.isEmpty() && wanted.isValid()) {
        base = wanted.rgb();
    }
    const Surface normal(base);
    const Surface hover(base.lighter(shade));
    const Surface pressed(base.darker(shade));
    // The colour does not follow the desktop's palette, so neither do the text, the focus and the grey of a button that
    // can not be pressed.
    button->setStyleSheet(
        u"QPushButton { background-color: "_s + normal.gradient() +
        u"; border-style: outset; border-width: 1px; border-radius: 4px; border-color: black; "
        "font: 13px; padding: 1px;} QPushButton:hover {background-color: "_s +
        hover.gradient() + u"} QPushButton:pressed {background-color: "_s + pressed.gradient() + u"} "_s +
        u"QPushButton {color: %1} QPushButton:hover {color: %2} QPushButton:pressed {color: %3} "
        "QPushButton:focus {border-style: solid; border-width: 3px; border-color: %1} "
        "QPushButton:disabled {background-color: #d6d6d6; color: #555555; border-color: #8a8a8a}"_s.arg(
            normal.text.name(), hover.text.name(), pressed.text.name()));
}

void SetArrowImage(QLabel* label, const QString& resource)
{
    new ArrowImage(label, resource);
}

// SPDX-License-Identifier: MIT
#include "dialogs/AlarmLabel.h"
#include "dialogs/Contrast.h"

#include <QEvent>

using namespace Qt::StringLiterals;

AlarmLabel::AlarmLabel(const QString& html, QWidget* parent)
    : QLabel(parent)
    , source(html)
{
    setWordWrap(true);
    updateColour();
}

void AlarmLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        updateColour();
    }
}

void AlarmLabel::updateColour()
{
    const QColor red = Contrast::alarm(palette().color(backgroundRole()));
    QString html = source;
    if (red != Qt::red) {
        html.replace("color='red'"_L1, "color='%1'"_L1.arg(red.name()));
    }
    setText(html);
}

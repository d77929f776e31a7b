// SPDX-License-Identifier: MIT
#include "dialogs/ElidedLabel.h"
#include "dialogs/PlainText.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStylePainter>

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::setLine(const QString& text)
{
    setText(text);
    setToolTip(PlainText::toolTip(text));
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    const auto aligned = QStyle::visualAlignment(layoutDirection(), alignment());
    painter.drawItemText(rect(), int(aligned), palette(), isEnabled(), shown, foregroundRole());
}

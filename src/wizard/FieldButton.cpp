// SPDX-License-Identifier: MIT
#include "wizard/FieldButton.h"

#include <QApplication>
#include <QStyleOptionButton>
#include <QStylePainter>

FieldButton::FieldButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
{
    connect(qApp, &QApplication::focusChanged, this, qOverload<>(&QWidget::update));
}

void FieldButton::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const QWidget* focused = QApplication::focusWidget();
    if (!focused || !parentWidget()->isAncestorOf(focused)) {
        option.text.remove(u'&');
    }
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

// SPDX-License-Identifier: MIT
#include "wizard/FieldEdit.h"

#include <QKeyEvent>

void FieldEdit::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    if (event->modifiers() == Qt::AltModifier && !text.isEmpty() && text.at(0).isPrint()) {
        event->ignore();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

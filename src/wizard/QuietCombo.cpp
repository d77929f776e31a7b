// SPDX-License-Identifier: MIT
#include "wizard/QuietCombo.h"
#include "dialogs/PlainText.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace {

constexpr int shownCharacters = 20;

} // namespace

QuietCombo::QuietCombo(QWidget* parent)
    : QComboBox(parent)
{
    setMinimumContentsLength(shownCharacters);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // The wheel does not give it the focus either.
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { setToolTip(PlainText::toolTip(text)); });
}

// What is asked for at least, whatever the names are. The size policy that says so makes Qt build the list of choices
// at once.
QSize QuietCombo::sizeHint() const
{
    return minimumSizeHint();
}

void QuietCombo::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void QuietCombo::keyPressEvent(QKeyEvent* event)
{
    // A shortcut that does nothing here would choose what begins with its letter.
    if (event->modifiers() == Qt::AltModifier && !event->text().isEmpty() && event->text().at(0).isPrint()) {
        event->ignore();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

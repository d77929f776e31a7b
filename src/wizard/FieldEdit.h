// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

/// A line of text into which Alt and a letter never type: the shortcut of a button that is not there would replace what
/// is selected.
class FieldEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

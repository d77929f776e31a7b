// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// Underlines its letter only while the shortcut works: with the focus in its own field.
class FieldButton : public QPushButton
{
    Q_OBJECT

public:
    FieldButton(const QString& text, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

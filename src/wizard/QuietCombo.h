// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

/// A list of choices that long names do not widen, their tool tips hold the whole, and that the wheel changes only
/// while it has the focus: on the way down a page it would choose something else. Alt and a letter choose nothing.
class QuietCombo : public QComboBox
{
    Q_OBJECT

public:
    explicit QuietCombo(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

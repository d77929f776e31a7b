// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// One line of plain text that never widens its window: what does not fit is left out of its middle and told by the
/// tool tip. Meant for paths.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// Use this in place of setText().
    void setLine(const QString& text);
    QString line() const { return text(); }
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

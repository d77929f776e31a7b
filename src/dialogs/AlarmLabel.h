// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A text with parts in red, which the palette makes a red that can be read.
class AlarmLabel : public QLabel
{
    Q_OBJECT

public:
    /// The html says color='red' where it means it.
    explicit AlarmLabel(const QString& html, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void updateColour();

    QString source;
};

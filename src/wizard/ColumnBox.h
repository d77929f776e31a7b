// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>
#include <QList>

class QGridLayout;

/// A titled box with its controls in columns, row by row. Where the room is not wide enough for all of them it has
/// fewer.
class ColumnBox : public QGroupBox
{
    Q_OBJECT

public:
    /// The columns that there are when there is room.
    explicit ColumnBox(int columns);

    /// Adds a control behind the others; it spans that many columns, also those of the controls behind it.
    void add(QWidget* control, int span = 1);
    /// Is content with one column.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Cell
    {
        QWidget* control;
        int span;
    };

    int widthOf(int columns) const;
    void place(int columns);

    QGridLayout* grid;
    QList<Cell> cells;
    int most;
    int placed;
};

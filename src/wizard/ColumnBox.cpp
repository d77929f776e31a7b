// SPDX-License-Identifier: MIT
#include "wizard/ColumnBox.h"

#include <QGridLayout>

#include <algorithm>
#include <numeric>
#include <utility>

ColumnBox::ColumnBox(int columns)
    : grid(new QGridLayout(this))
    , most(columns)
    , placed(columns)
{
}

void ColumnBox::add(QWidget* control, int span)
{
    const int index = int(cells.size());
    cells.append({control, span});
    grid->addWidget(control, index / placed, index % placed, 1, span);
}

QSize ColumnBox::minimumSizeHint() const
{
    const QSize needed = QGroupBox::minimumSizeHint();
    return {std::min(needed.width(), widthOf(1)), needed.height()};
}

// With the controls as narrow as they can be.
int ColumnBox::widthOf(int columns) const
{
    QList<int> widths(columns, 0);
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const QWidget& control = *cells[i].control;
        int& width = widths[i % columns];
        width = std::max({width, control.minimumSizeHint().width(), control.minimumWidth()});
    }
    const QMargins margins = grid->contentsMargins() + contentsMargins();
    return std::accumulate(widths.cbegin(), widths.cend(), margins.left() + margins.right()) +
           (columns - 1) * std::max(0, grid->horizontalSpacing());
}

void ColumnBox::resizeEvent(QResizeEvent* event)
{
    QGroupBox::resizeEvent(event);
    int columns = most;
    while (columns > 1 && widthOf(columns) > width()) {
        --columns;
    }
    if (columns != placed) {
        place(columns);
    }
}

void ColumnBox::place(int columns)
{
    placed = columns;
    for (const Cell& cell : std::as_const(cells)) {
        grid->removeWidget(cell.control);
    }
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const int index = int(i);
        const int column = index % columns;
        const int span = columns == most ? cells[i].span : std::min(cells[i].span, columns - column);
        grid->addWidget(cells[i].control, index / columns, column, 1, span);
    }
}

// SPDX-License-Identifier: MIT
#include "wizard/ReadingOrder.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

void collect(const QLayout& layout, QList<QWidget*>& stops);

void collect(QWidget& widget, QList<QWidget*>& stops)
{
    const auto* area = qobject_cast<QScrollArea*>(&widget);
    if ((widget.focusPolicy() & Qt::TabFocus) != 0 && !widget.focusProxy()) {
        stops += &widget;
    } else if (area && area->widget()) {
        collect(*area->widget(), stops);
    } else if (widget.layout()) {
        collect(*widget.layout(), stops);
    }
}

QList<QLayoutItem*> itemsOf(const QLayout& layout)
{
    const auto* grid = qobject_cast<const QGridLayout*>(&layout);
    QList<std::pair<std::pair<int, int>, QLayoutItem*>> placed;
    for (int i = 0; i < layout.count(); ++i) {
        std::pair place{0, i};
        if (int rows = 0, columns = 0; grid) {
            grid->getItemPosition(i, &place.first, &place.second, &rows, &columns);
        }
        placed.append({place, layout.itemAt(i)});
    }
    std::ranges::stable_sort(placed, {}, &decltype(placed)::value_type::first);
    QList<QLayoutItem*> items;
    for (const auto& [place, item] : std::as_const(placed)) {
        items += item;
    }
    return items;
}

void collect(const QLayout& layout, QList<QWidget*>& stops)
{
    const QList<QLayoutItem*> items = itemsOf(layout);
    for (QLayoutItem* item : items) {
        if (item->widget()) {
            collect(*item->widget(), stops);
        } else if (item->layout()) {
            collect(*item->layout(), stops);
        }
    }
}

} // namespace

QList<QWidget*> ReadingOrder::of(const QWidget& page)
{
    QList<QWidget*> stops;
    if (page.layout()) {
        collect(*page.layout(), stops);
    }
    return stops;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QWidget;

/// The order in which a page's controls are read: that of its layouts, row by row.
namespace ReadingOrder {

/// The controls below a widget that Tab stops at, hidden ones included.
QList<QWidget*> of(const QWidget& page);

} // namespace ReadingOrder

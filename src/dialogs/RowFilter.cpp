// SPDX-License-Identifier: MIT
#include "dialogs/RowFilter.h"

#include <QDeadlineTimer>
#include <QListWidget>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 12ms;

} // namespace

RowFilter::RowFilter(QListWidget& rows, QObject* parent)
    : QObject(parent)
    , list(rows)
{
    connect(&timer, &QTimer::timeout, this, &RowFilter::filterSome);
}

void RowFilter::setWords(const QString& text)
{
    words = text;
    next = 0;
    shown = 0;
    timer.start(0);
    filterSome();
}

void RowFilter::filterSome()
{
    const QDeadlineTimer deadline(patience);
    for (; next < list.count() && !deadline.hasExpired(); ++next) {
        const bool fits = list.item(next)->text().contains(words, Qt::CaseInsensitive);
        list.setRowHidden(next, !fits);
        shown += int(fits);
    }
    if (next >= list.count() && timer.isActive()) {
        timer.stop();
        Q_EMIT done(shown);
    }
}

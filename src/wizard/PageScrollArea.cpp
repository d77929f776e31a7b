// SPDX-License-Identifier: MIT
#include "wizard/PageScrollArea.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

QWidget* PageScrollArea::fill(QWidget& page)
{
    auto* area = new PageScrollArea(&page);
    auto* layout = new QVBoxLayout(&page);
    layout->setContentsMargins({});
    layout->addWidget(area);
    return area->widget();
}

PageScrollArea::PageScrollArea(QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    // It is no stop of its own on the way with Tab.
    setFocusPolicy(Qt::NoFocus);
    setWidget(new QWidget);
    // The page shines through.
    viewport()->setAutoFillBackground(false);
    widget()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) { showFocus(focused); });
}

PageScrollArea::~PageScrollArea()
{
    // A widget that goes takes the focus with it when it is no longer this one.
    disconnect(qApp, nullptr, this, nullptr);
}

QSize PageScrollArea::bounded(const QSize& wanted) const
{
    const QSize available = screen()->availableSize();
    return wanted.boundedTo({available.width() * 4 / 5, available.height() / 2});
}

QSize PageScrollArea::sizeHint() const
{
    return bounded(widget()->sizeHint());
}

QSize PageScrollArea::minimumSizeHint() const
{
    const QSize needed = widget()->minimumSizeHint();
    return bounded({needed.width() + verticalScrollBar()->sizeHint().width(), needed.height()});
}

bool PageScrollArea::eventFilter(QObject* object, QEvent* event)
{
    if (object == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(object, event);
}

void PageScrollArea::showFocus(QWidget* focused)
{
    if (focused && widget()->isAncestorOf(focused)) {
        ensureWidgetVisible(focused);
    }
}

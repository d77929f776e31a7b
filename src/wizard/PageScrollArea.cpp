// SPDX-License-Identifier: MIT
#include "wizard/PageScrollArea.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

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
    // Of the wizard's title, hint, help and buttons, the window's frame and a panel of the desktop.
    constexpr int otherLines = 18;
    const QSize available = screen()->availableSize();
    const int height = std::max(available.height() / 2, available.height() - otherLines * fontMetrics().lineSpacing());
    return wanted.boundedTo({available.width() * 4 / 5, height});
}

QSize PageScrollArea::sizeHint() const
{
    return bounded(widget()->sizeHint());
}

QSize PageScrollArea::minimumSizeHint() const
{
    const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return bounded({width, widget()->sizeHint().height()});
}

int PageScrollArea::missingHeight() const
{
    return std::min(verticalScrollBar()->maximum(), std::max(0, sizeHint().height() - height()));
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

// SPDX-License-Identifier: MIT
#include "launchers/RunIndicator.h"
#include "dialogs/PlainText.h"
#include "dialogs/ProgressBar.h"
#include "process/ProgressLine.h"

#include <QEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 4;
constexpr int barHeight = 4;
constexpr int stopHeight = 17;
// Below this there is no room for a word beside the launcher's own.
constexpr int narrow = 110;

} // namespace

RunIndicator::RunIndicator(QPushButton* launcherButton)
    : QObject(launcherButton)
    , button(launcherButton)
{
    button->installEventFilter(this);
}

void RunIndicator::create(QWidget* parent)
{
    stop = new QPushButton(parent);
    stop->setStyleSheet(u"QPushButton { font: 11px; padding: 0px 4px; }"_s);
    connect(stop, &QPushButton::clicked, this, &RunIndicator::stopRequested);
    bar = new QProgressBar(parent);
    bar->setTextVisible(false);
    bar->setAttribute(Qt::WA_TransparentForMouseEvents);
    bar->setStyleSheet(u"QProgressBar { border: none; border-radius: 2px; background: rgba(0, 0, 0, 70); } "
                       "QProgressBar::chunk { border-radius: 2px; background: #1c4f9c; }"_s);
    QWidget::setTabOrder(button, stop);
}

void RunIndicator::show(const QString& tool)
{
    if (!button->parentWidget()) {
        return;
    }
    if (!stop) {
        create(button->parentWidget());
    }
    stop->setText(button->width() < narrow ? u"\u25A0"_s : tr("Stop"));
    stop->setToolTip(PlainText::toolTip(tr("Stop %1").arg(tool)));
    stop->setAccessibleName(tr("Stop %1").arg(tool));
    stop->setEnabled(true);
    bar->setAccessibleName(tr("Progress of %1").arg(tool));
    place();
    stop->raise();
    stop->setVisible(button->isVisible());
}

void RunIndicator::showProgress(const Progress& progress)
{
    if (!bar || !progress.isKnown()) {
        return;
    }
    bar->setRange(0, progress.total);
    bar->setValue(progress.done);
    bar->raise();
    bar->setVisible(button->isVisible());
}

void RunIndicator::showStopping()
{
    if (!stop) {
        return;
    }
    // The focus would go to whatever comes next.
    if (stop->hasFocus()) {
        button->setFocus();
    }
    stop->setEnabled(false);
}

void RunIndicator::hide()
{
    if (!stop) {
        return;
    }
    if (stop->hasFocus()) {
        button->setFocus();
    }
    stop->hide();
    bar->hide();
}

void RunIndicator::place()
{
    const QRect area = button->geometry();
    const int height = std::min(stopHeight, area.height() - 2);
    const int width = std::min(stop->sizeHint().width(), area.width() / 2);
    const int top = std::max(area.top() + 1, area.bottom() - barHeight - margin - height + 1);
    const QRect place(area.right() - margin - width, top, width, height);
    stop->setGeometry(QStyle::visualRect(button->layoutDirection(), area, place));
    bar->setGeometry(area.left() + margin, area.bottom() - margin - barHeight + 2, area.width() - 2 * margin,
                     barHeight);
}

bool RunIndicator::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (stop && (type == QEvent::Move || type == QEvent::Resize)) {
        place();
    }
    return QObject::eventFilter(watched, event);
}

// SPDX-License-Identifier: MIT
#include "dialogs/ProgressBar.h"
#include "process/ProgressLine.h"

ProgressBar::ProgressBar(QWidget* parent)
    : QProgressBar(parent)
{
    showProgress({});
}

void ProgressBar::showProgress(const Progress& progress)
{
    setRange(0, progress.total);
    setValue(progress.isKnown() ? progress.done : 1);
    setFormat(progress.isKnown() ? countText(progress) : QString());
}

QString ProgressBar::countText(const Progress& progress)
{
    return tr("%1 of %2").arg(progress.done).arg(progress.total);
}

// SPDX-License-Identifier: MIT
#include "dialogs/BusyDialog.h"
#include "dialogs/ElidedLabel.h"
#include "dialogs/ProgressBar.h"
#include "process/ProgressLine.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Room for a path.
constexpr int leastWidth = 380;

} // namespace

BusyDialog::BusyDialog(const QString& tool, QWidget* parent)
    : QDialog(parent)
    , bar(new ProgressBar)
    , item(new ElidedLabel)
{
    setWindowTitle(tool);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumWidth(leastWidth);
    auto* label = new QLabel(tr("\"%1\" is running.").arg(tool));
    label->setTextFormat(Qt::PlainText);
    bar->setAccessibleName(tr("Progress of %1").arg(tool));
    auto* stop = new QPushButton(tr("&Stop"));
    stop->setAutoDefault(false);
    connect(stop, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(bar);
    layout->addWidget(item);
    layout->addWidget(stop, 0, Qt::AlignRight);
}

void BusyDialog::showProgress(const Progress& progress)
{
    bar->showProgress(progress);
    item->setLine(progress.item);
}

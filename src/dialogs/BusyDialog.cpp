// SPDX-License-Identifier: MIT
#include "dialogs/BusyDialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

BusyDialog::BusyDialog(const QString& tool, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tool);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* label = new QLabel(tr("\"%1\" is running.").arg(tool));
    label->setTextFormat(Qt::PlainText);
    auto* bar = new QProgressBar;
    bar->setRange(0, 0);
    auto* stop = new QPushButton(tr("&Stop"));
    stop->setAutoDefault(false);
    connect(stop, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(bar);
    layout->addWidget(stop, 0, Qt::AlignRight);
}

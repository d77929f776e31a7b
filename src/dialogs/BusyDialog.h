// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

/// Says which tool the locked wizard is waiting for. Stop, Escape and closing reject it.
class BusyDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BusyDialog(const QString& tool, QWidget* parent = nullptr);
};

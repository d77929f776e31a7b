// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class ElidedLabel;
class ProgressBar;
struct Progress;

/// Says which tool the locked wizard is waiting for, and how far it has come. Stop, Escape and closing reject it.
class BusyDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BusyDialog(const QString& tool, QWidget* parent = nullptr);

    void showProgress(const Progress& progress);

private:
    ProgressBar* bar;
    ElidedLabel* item;
};

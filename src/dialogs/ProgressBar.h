// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressBar>

struct Progress;

/// Shows that a program works, and how far it has come once it tells.
class ProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit ProgressBar(QWidget* parent = nullptr);

    /// An unknown progress gives a bar that only moves.
    void showProgress(const Progress& progress);
    /// "34 of 151", as all places tell it.
    static QString countText(const Progress& progress);
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

class QListWidget;

/// Hides the rows of a list that do not hold some words. Of a long list it does a portion at a time, so that the window
/// stays alive.
class RowFilter : public QObject
{
    Q_OBJECT

public:
    /// The list must live longer.
    explicit RowFilter(QListWidget& rows, QObject* parent = nullptr);

    /// Shows only the rows with these words, in any letter case.
    void setWords(const QString& text);

Q_SIGNALS:
    /// All rows have been looked at; so many are shown.
    void done(int shown);

private:
    void filterSome();

    QListWidget& list;
    QString words;
    QTimer timer;
    int next = 0;
    int shown = 0;
};

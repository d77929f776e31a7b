// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// What of a build did not get into the project, how often, and where.
class ConversionLog
{
public:
    struct Entry
    {
        QString text;
        qsizetype count = 0;
        /// The first places, sources or lines of the description; not more than are of use to anybody.
        QStringList places;
    };

    int number(const QString& text);
    void count(int number, const QString& place);
    void count(const QString& text, const QString& place) { count(number(text), place); }
    const QList<Entry>& entries() const { return all; }

private:
    QList<Entry> all;
    QHash<QString, int> numbers;
};

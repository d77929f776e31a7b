// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <limits>

/// Lines of a program's output on their way to a view. Keeps no more than a view would show: of a flood the oldest
/// lines are dropped and counted.
class OutputBuffer
{
public:
    explicit OutputBuffer(qsizetype keptLines);

    /// Adds output as it came; a line may be spread over several calls.
    void append(QStringView text);
    bool isEmpty() const { return lines.isEmpty() && partial.isEmpty(); }
    /// Takes at most maximum lines, oldest first, and no further one once they hold so many characters. An unfinished
    /// last line is held back for one call, so that a line cut by a read is joined and a program's prompt still
    /// appears.
    QStringList take(qsizetype maximum, qsizetype characters = std::numeric_limits<qsizetype>::max());
    /// Nothing more will come: an unfinished line is one like any other.
    void endLine();
    /// Lines dropped since the last call.
    qint64 takeDropped();
    void clear();

private:
    void addLine(QString line);
    void trim();

    qsizetype keptLines;
    QStringList lines;
    qsizetype heldCharacters = 0;
    QString partial;
    bool partialHeldBack = false;
    qint64 dropped = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// How far a program has come, by its own count.
struct Progress
{
    int done = 0;
    /// 0 while nothing is known.
    int total = 0;
    /// What it is at, as it says; may be empty.
    QString item = {};

    bool isKnown() const { return total > 0; }
    bool operator==(const Progress&) const = default;
};

/// Finds in a program's output the lines that begin with "[done/total]", as build programs print them, ended by a line
/// break or a carriage return. Use one for each channel: a line may be spread over several reads.
class ProgressLine
{
public:
    /// Takes output as it came; true when the progress is another now.
    bool append(QByteArrayView output);
    const Progress& progress() const { return current; }
    void clear();

    /// The progress as one line that overwrites itself on a terminal of so many columns; to be written to a terminal
    /// only. An unknown progress gives what clears the line.
    static QString terminalLine(const Progress& progress, int columns);

private:
    void readHead();
    QByteArrayView skipOtherLines(QByteArrayView output);

    /// The beginning of the line that is being printed, if that begins with a bracket.
    QByteArray head;
    /// The line that is being printed begins with something else.
    bool inOtherLine = false;
    Progress current;
};

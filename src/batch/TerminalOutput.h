// SPDX-License-Identifier: MIT
#pragma once

#include "process/ProgressLine.h"

#include <QProcess>
#include <QString>

/// What a child prints, on a terminal: lines that tell its progress take turns in the last line, all others stay above.
class TerminalOutput
{
public:
    /// False when standard output is no terminal that can do so; the child's output is to go there as it is then.
    static bool isPossible();
    /// The channels that the child's output has to be read from: errors may be meant for somewhere else.
    static QProcess::ProcessChannelMode channelMode();

    /// Takes output as it came.
    void add(const QString& output);
    /// Takes the progress away, and prints what did not end its line.
    void finish();

private:
    /// What is to be printed for a line, of which the terminal keeps only those that were ended by a line feed.
    QString taken(const QString& line, bool isKept);

    Progress progress;
    QString rest;
};

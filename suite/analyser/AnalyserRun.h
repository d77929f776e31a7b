// SPDX-License-Identifier: MIT
#pragma once

#include "Finding.h"

#include <QList>
#include <QString>
#include <QStringList>

/// One run of cppcheck: what it said and how it ended.
struct AnalyserRun
{
    enum class End { Normal, Crashed, TimedOut, Failed };

    /// Runs it in this folder; a run that takes longer than so many seconds is killed.
    static AnalyserRun start(const QStringList& arguments, const QString& folder, int seconds);

    QList<Finding> findings;
    End end = End::Normal;
    /// Of a run that did not end well: why, in one line.
    QString reason;
    /// It included files in quotes that it did not find.
    bool missesIncludes = false;
};

namespace Analyser {

/// "Cppcheck 2.10"; throws a Failure when there is none, or one too old.
QString version();
/// Seconds that one source may take: ORV_TIME_LIMIT, else ten minutes.
int timeLimit();

inline constexpr char program[] = "cppcheck";
inline constexpr char timeLimitVariable[] = "ORV_TIME_LIMIT";

} // namespace Analyser

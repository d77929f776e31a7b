// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

struct AnalysisPlan;

/// What a unit is analysed with.
struct UnitOptions
{
    /// The file of its option set, below the work folder; its name changes with its contents.
    QString file;
    /// Units with the same text can be analysed by one process; empty: only alone.
    QString shared;
};

/// Writes what Ninja needs to tell which sources are to be analysed: build.ninja in the plan's work folder with one
/// statement for each, and the option sets that the jobs read. Files that have not changed keep their time. version is
/// the analyser's. Gives the options of each unit. Throws a Failure when something can not be written.
std::vector<UnitOptions> writeBuildFile(const AnalysisPlan& plan, const QString& version);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// The analysis of some sources, which Ninja starts: a process of its own, so that it can run anywhere.
namespace Job {

/// What the build file says after "job", for each source.
struct Order
{
    /// The file of the option set.
    QString options;
    QString source;
    /// The results' name without .err and .met.
    QString output;
    /// A folder below the current one: the compilation database, what cppcheck leaves for the check of the whole
    /// program, and the dependency rule.
    QString folder;
};

/// Analyses them, together where it can; the results are there afterwards whole or not at all. 0: done, also where the
/// analyser gave up; else the next run has to try again what failed, and the reasons were printed.
int run(const std::vector<Order>& orders);

/// The files in a unit's folder: one that is newer than all that the unit depends on, with the option set's name and
/// then IncludeScan::missing() as its lines; what cppcheck left for the check of the whole program; the dependency
/// rule.
QString stampName(const QString& folder);
QString recordName(const QString& folder);
QString dependencyName(const QString& folder);

} // namespace Job

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The analysis of one source, which Ninja starts: a process of its own, so that it can run anywhere.
namespace Job {

/// What the build file says after "job".
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

/// Analyses it; the results are there afterwards whole or not at all. 0: done, also when the analyser gave up; else the
/// next run has to try again, and the reason was printed. Throws a Failure when the results can not be written.
int run(const Order& order);

/// The files in a unit's folder: one that is newer than all that the unit depends on, what cppcheck left for the check
/// of the whole program, and the dependency rule.
QString stampName(const QString& folder);
QString recordName(const QString& folder);
QString dependencyName(const QString& folder);

} // namespace Job

// SPDX-License-Identifier: MIT
#pragma once

#include "SourceRuns.h"

#include <QString>
#include <QStringList>

class IncludeScan;

/// The headers of a program that its sources include and nobody finds, such as those that a build has not made yet:
/// what they declare is not seen, and code that depends on it may look like none.
namespace UnreadHeaders {

/// Those of a source, as its includes name them. The scan has looked for its headers. Whether the run missed any tells
/// if it is worth a look; the system's own headers, which cppcheck does not read, are none.
QStringList of(const SourceRuns::Task& task, const AnalyserRun& run, const IncludeScan& scan);

/// Keeps them in a unit's folder, which has none of an earlier run.
void write(const QString& folder, const QStringList& names);
QStringList read(const QString& folder);

} // namespace UnreadHeaders

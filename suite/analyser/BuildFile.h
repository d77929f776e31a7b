// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct AnalysisPlan;

/// Writes what Ninja needs into the plan's work folder: build.ninja with one statement for each source, and the option
/// sets that the jobs read. Files that have not changed keep their time. version is the analyser's, program this one's
/// path. Throws a Failure when something can not be written.
void writeBuildFile(const AnalysisPlan& plan, const QString& version, const QString& program);

/// The variable that holds what --launcher puts before every job. It is no part of the command that Ninja remembers, so
/// another launcher analyses nothing again.
inline constexpr char launcherVariable[] = "ORV_LAUNCHER";

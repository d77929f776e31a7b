// SPDX-License-Identifier: MIT
#pragma once

#include "BuildFile.h"

#include <QList>

struct RunSettings;

/// Writes run.ninja into the plan's work folder: jobs for these units, each unit once. A job takes several sources
/// where one process of the analyser may, since starting it costs as much as analysing a small one; the last are the
/// smallest jobs, so that all processors end together. A job's description is the numbers of its units. Throws a
/// Failure when the file can not be written.
void writeRunFile(const AnalysisPlan& plan, const std::vector<UnitOptions>& options, const QList<size_t>& units,
                  const QString& program, const RunSettings& settings);

inline constexpr char runFileName[] = "run.ninja";

// SPDX-License-Identifier: MIT
#pragma once

#include "NinjaRun.h"

struct AnalysisPlan;
class AnalysisResults;

/// How an analysis ended.
enum class AnalysisEnd {
    /// Every source has been analysed.
    Complete,
    /// Results are there, but not for every source.
    Incomplete,
    /// No source has been analysed, or the run was stopped.
    Nothing,
    Stopped
};

/// Analyses every source whose results are missing or old, prints "[n/m] source" for each and a summary at the end.
/// Throws a Failure when it can not begin.
AnalysisEnd analyse(AnalysisPlan& plan, const RunSettings& settings);

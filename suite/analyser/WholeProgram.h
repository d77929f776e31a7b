// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct AnalysisPlan;

/// The checks that look across all sources: one definition of a class, functions that nobody calls, values that are
/// passed between files. They work on what the analysis of each source has left, so no source is read again.
namespace WholeProgram {

/// The messages, one a line, as in .err files.
QString resultFile(const AnalysisPlan& plan);

/// Checks afresh when a source was analysed, left out or added since. Throws a Failure when the messages can not be
/// written or the analyser fails.
void check(const AnalysisPlan& plan);

} // namespace WholeProgram

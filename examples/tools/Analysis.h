// SPDX-License-Identifier: MIT
#pragma once

struct ToolOptions;

/// Runs cppcheck on every source of the project whose output is missing or old, and writes its messages (.err) and
/// measures (.met). The number of sources that could not be analysed.
int analyseProject(const ToolOptions& options, bool forC);

// SPDX-License-Identifier: MIT
#pragma once

struct ToolOptions;

/// Runs cppcheck on every source of the project whose output is missing or old, or without a project on every source
/// of the list, and writes its messages (.err) and measures (.met). The number of sources that could not be analysed.
/// Throws a QString when there is nothing that could be.
int analyseSources(const ToolOptions& options, bool forC);

// SPDX-License-Identifier: MIT
#pragma once

#include "SourceUnit.h"

/// Reads a compilation database (a JSON array of objects with "directory", "file" and "command" or "arguments").
/// Throws Failure, with the line and column, for what is not one.
SourceUnits readCompileDatabase(const QString& fileName);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Lets cmake configure a source folder in a folder of its own beside the project file, from the start each time, and
/// gives the compilation database that it writes. The options are more arguments of cmake, in a shell's notation.
/// Throws Failure when cmake fails, with the end of its output.
QString configureCMake(const QString& sourceFolder, const QString& options, const QString& projectFile);

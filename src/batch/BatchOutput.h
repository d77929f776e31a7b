// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The standard channels of a run without a window.
namespace BatchOutput {

/// Writes to standard output.
void print(const QString& text);
/// Writes to standard error as it is.
void printError(const QString& text);
/// A line on standard error that begins with the program's name.
void complain(const QString& text);
/// The same for what does not end the run.
void warn(const QString& text);

/// True when standard output did not take all of it: it is closed, full, or a pipe that nobody reads.
bool isBroken();

} // namespace BatchOutput

// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// Looks for what the reader of a definitions file would pass over in silence.
namespace BatchCheck {

/// Prints the mistakes of the file, each with its line, to standard output; gives the exit status.
int execute(const QString& fileName);

} // namespace BatchCheck

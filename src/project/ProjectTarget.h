// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"

/// The checks a project file's place must pass before a conversion may start.
namespace ProjectTarget {

/// Makes the folder with all its parents; the problem is the system's reason.
Result<void> createFolder(const QString& folder);

/// Whether the file can be written or made; the problem is the system's reason. A file that was not there is not made,
/// not even for a moment; one that was keeps its contents.
Result<void> checkWritable(const QString& file);

} // namespace ProjectTarget

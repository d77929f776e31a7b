// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// The checks a project file's place must pass before a conversion may start.
namespace ProjectTarget {

/// Makes the folder with all its parents.
bool createFolder(const QString& folder);

/// True when the file can be written or made. A file that was not there is not made, not even for a moment; one that
/// was keeps its contents.
bool isWritable(const QString& file);

} // namespace ProjectTarget

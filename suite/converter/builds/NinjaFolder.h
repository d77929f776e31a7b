// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Whether ninja can be asked about a build folder.
bool isNinjaFolder(const QString& folder);

/// Asks ninja how it would compile what a build folder describes, and gives the compilation database of it. It lies
/// beside the project file; nothing is built, and the build folder stays as it is. Throws Failure when ninja fails or
/// nothing is compiled there.
QString describeNinja(const QString& folder, const QString& projectFile);

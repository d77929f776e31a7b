// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class PathFinder;

/// Patterns of files as projects write them: * and ? stand for parts of a name, ** for any folders.
namespace Wildcards {

bool isIn(const QString& pattern);

/// The files that a pattern stands for, absolute and sorted; relative ones count from the folder. Links to folders are
/// not followed, and nothing is found for a whole disk.
QStringList find(const QString& folder, const QString& pattern, PathFinder& paths);

} // namespace Wildcards

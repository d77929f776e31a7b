// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Paths of the described system, which need not be the one that this program runs on.
namespace Paths {

/// Whether this is an absolute path of Windows: a drive with a separator, or a share.
bool isWindows(QStringView path);

/// Joins a path to an absolute folder unless it is absolute itself, and cleans it. With windows, backslashes separate
/// too; separators come out as "/" and drive letters in upper case.
QString absolute(const QString& folder, const QString& path, bool windows);

/// The folder of a file, or of a folder; a root is its own.
QString folderOf(const QString& path);

/// What stands after the last separator.
QStringView nameOf(QStringView path);

/// Whether a path lies in a folder or is that folder. Windows' paths compare without case.
bool isBelow(QStringView path, QStringView folder);

/// A text that is equal for two spellings of one path.
QString key(const QString& path);

} // namespace Paths

// SPDX-License-Identifier: MIT
#pragma once

#include "SourceUnit.h"

/// The sources below a folder with these endings, in the order of their paths. Exclude patterns match the names of
/// files and folders. Throws Failure when the folder can not be read.
SourceUnits scanFolder(const QString& folder, const QStringList& extensions, const QStringList& exclude);

/// The sources that a text file lists, one a line; blank lines and lines that begin with # are passed over. Relative
/// names are relative to the list. Throws Failure when it can not be read.
SourceUnits readFileList(const QString& fileName);

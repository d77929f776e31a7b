// SPDX-License-Identifier: MIT
#pragma once

#include "SourceUnit.h"

class QFile;

/// The sources below a folder with these endings, in the order of their paths. Exclude patterns match the names of
/// files and folders; links to folders are not followed. Folders that may not be read are left out and named in
/// unreadable. Throws Failure when that is the folder itself.
SourceUnits scanFolder(const QString& folder, const QStringList& extensions, const QStringList& exclude,
                       QStringList& unreadable);

/// The sources that a text file lists, one a line; blank lines and lines that begin with # are passed over. Relative
/// names are relative to the list. Throws Failure when it can not be read.
SourceUnits readFileList(const QString& fileName);

/// Opens an existing text file; throws a Failure that tells why it can not be read, and what kind of file is wanted.
void openText(QFile& file, const QString& kind);

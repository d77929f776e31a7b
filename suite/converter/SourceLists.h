// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class PathFilter;
class QFile;
class SourceCollector;

/// The sources below a folder with these endings, in the order of their paths, without what the filter leaves out;
/// links to folders are not followed. Endings compare without case, except c and C. Folders that may not be read are
/// left out and noted. Throws Failure when that is the folder itself.
void scanFolder(const QString& folder, const QStringList& extensions, const PathFilter& leaveOut,
                SourceCollector& collector);

/// The endings of C++ and C sources.
QStringList usualCppEndings();

/// The sources that a text file lists, one a line; blank lines and lines that begin with # are passed over. Relative
/// names are relative to the list. Throws Failure when it can not be read.
void readFileList(const QString& fileName, SourceCollector& collector);

/// The lines of a text file without blanks around them, without empty ones and comments. Throws Failure.
QStringList listedLines(const QString& fileName);

/// Opens an existing text file; throws a Failure that tells why it can not be read, and what kind of file is wanted.
void openText(QFile& file, const QString& kind);

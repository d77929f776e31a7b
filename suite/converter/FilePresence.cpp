// SPDX-License-Identifier: MIT
#include "FilePresence.h"
#include "Paths.h"

#include <QDirIterator>
#include <QFileInfo>

namespace {

// Below this a question for each file costs less than reading their folder.
constexpr int questionsBeforeListing = 4;

} // namespace

bool FilePresence::isFile(const QString& path)
{
#ifndef Q_OS_WIN
    if (Paths::isWindows(path)) {
        return false;
    }
#endif
    const QString folderPath = Paths::folderOf(path);
    Folder& folder = folders[folderPath];
    if (folder.questions == 0) {
        folder.isGone = !QFileInfo(folderPath).isDir();
    }
    if (folder.isGone) {
        ++folder.questions;
        return false;
    }
    if (++folder.questions > questionsBeforeListing && !folder.isListed) {
        list(folderPath, folder);
    }
    // A folder may be entered but not read, and a file system may know a name by another case.
    return folder.files.contains(Paths::nameOf(path).toString()) || QFileInfo(path).isFile();
}

void FilePresence::list(const QString& path, Folder& folder)
{
    folder.isListed = true;
    QDirIterator names(path, QDir::Files | QDir::Hidden);
    while (names.hasNext()) {
        names.next();
        folder.files.insert(names.fileName());
    }
}

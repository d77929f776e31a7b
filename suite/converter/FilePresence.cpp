// SPDX-License-Identifier: MIT
#include "FilePresence.h"
#include "Paths.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <QDirIterator>
#else
#include <dirent.h>
#include <memory>
#endif

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
        folder.isListed = true;
        list(folderPath, folder);
    }
    // A folder may be entered but not read, and a file system may know a name by another case.
    return folder.files.contains(Paths::nameOf(path).toString()) || QFileInfo(path).isFile();
}

#ifdef Q_OS_WIN
void FilePresence::list(const QString& path, Folder& folder)
{
    QDirIterator names(path, QDir::Files | QDir::Hidden);
    while (names.hasNext()) {
        names.next();
        folder.files.insert(names.fileName());
    }
}
#else
void FilePresence::list(const QString& path, Folder& folder)
{
    const auto close = [](DIR* stream) { ::closedir(stream); };
    const std::unique_ptr<DIR, decltype(close)> stream(::opendir(QFile::encodeName(path).constData()), close);
    // Who is no plain file by the name alone, a link say, is asked for singly.
    while (const dirent* entry = stream ? ::readdir(stream.get()) : nullptr) {
        if (entry->d_type == DT_REG) {
            folder.files.insert(QFile::decodeName(entry->d_name));
        }
    }
}
#endif

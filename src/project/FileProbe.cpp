// SPDX-License-Identifier: MIT
#include "project/FileProbe.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

qint64 timeBelow(int folder, const char* name)
{
    struct stat facts = {};
    if (::fstatat(folder, name, &facts, 0) != 0) {
        return FileProbe::missing;
    }
#ifdef Q_OS_DARWIN
    const timespec& modified = facts.st_mtimespec;
#else
    const timespec& modified = facts.st_mtim;
#endif
    return qint64(modified.tv_sec) * 1'000'000'000 + modified.tv_nsec;
}

} // namespace

qint64 FileProbe::time(const QString& path)
{
    return timeBelow(AT_FDCWD, QFile::encodeName(path).constData());
}

void FileProbe::enter(Folder& folder, const QString& path)
{
    if (folder.path == path) {
        return;
    }
    leave(folder);
    folder.path = path;
    folder.handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // A folder that may be entered but not listed is asked by path.
    folder.exists = folder.handle >= 0 || QFileInfo(path).isDir();
}

void FileProbe::leave(Folder& folder)
{
    if (folder.handle >= 0) {
        ::close(folder.handle);
    }
    folder = {};
}

#else

qint64 FileProbe::time(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? info.lastModified().toMSecsSinceEpoch() * 1'000'000 : missing;
}

void FileProbe::enter(Folder& folder, const QString& path)
{
    if (folder.path != path) {
        folder = {.path = path, .exists = QFileInfo(path).isDir()};
    }
}

void FileProbe::leave(Folder&) {}

#endif

FileProbe::~FileProbe()
{
    leave(sourceFolder);
    leave(outputFolder);
}

void FileProbe::enterFolders(const QString& sources, const QString& outputs)
{
    enter(sourceFolder, sources);
    enter(outputFolder, outputs);
}

qint64 FileProbe::sourceTime(const QString& absolutePath)
{
    const qsizetype prefix = sourceFolder.path.size();
    if (absolutePath.size() > prefix + 1 && absolutePath[prefix] == u'/' &&
        absolutePath.startsWith(sourceFolder.path)) {
        if (!sourceFolder.exists) {
            return missing;
        }
#ifdef Q_OS_UNIX
        if (sourceFolder.handle >= 0) {
            return timeBelow(sourceFolder.handle, QFile::encodeName(absolutePath.sliced(prefix + 1)).constData());
        }
#endif
        return time(absolutePath);
    }
    const QString folder = absolutePath.first(qMax<qsizetype>(0, absolutePath.lastIndexOf(u'/')));
    auto known = otherFolders.find(folder);
    if (known == otherFolders.end()) {
        known = otherFolders.insert(folder, folder.isEmpty() || QFileInfo(folder).isDir());
    }
    return *known ? time(absolutePath) : missing;
}

qint64 FileProbe::outputTime(QStringView sourceName, const char* suffix)
{
    if (!outputFolder.exists) {
        return missing;
    }
#ifdef Q_OS_UNIX
    if (outputFolder.handle >= 0) {
        outputName = QFile::encodeName(sourceName.toString());
        outputName += suffix;
        return timeBelow(outputFolder.handle, outputName.constData());
    }
#endif
    return time(outputFolder.path + u'/' + sourceName.toString() + QString::fromLatin1(suffix));
}

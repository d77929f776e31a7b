// SPDX-License-Identifier: MIT
#include "FileSet.h"
#include "Failure.h"
#include "Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

Failure cannotWrite(const QString& path, const QString& reason)
{
    return {u"%1: can not be written (%2). Make room, close programs that use it or choose another folder; what was "
            "there before is still there."_s.arg(QDir::toNativeSeparators(path), reason)};
}

// What was only half written says so at the flush: QSaveFile::commit() of Qt 6.4 is content without it.
template <typename File>
void fill(File& file, const QByteArray& contents)
{
    const bool isGood = file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush();
    if (!isGood) {
        throw cannotWrite(file.fileName(), file.errorString());
    }
}

void place(QSaveFile& file)
{
    const QString before = file.errorString();
    if (!file.commit()) {
        throw cannotWrite(file.fileName(), file.errorString().isEmpty() ? before : file.errorString());
    }
}

} // namespace

FileSet::FileSet() = default;

FileSet::~FileSet()
{
    if (!isDone) {
        rollBack();
    }
}

void FileSet::makeFolder(const QString& folder)
{
    if (folder.isEmpty() || QFileInfo(folder).isDir()) {
        return;
    }
    makeFolder(Paths::folderOf(folder));
    if (!QDir().mkdir(folder)) {
        throw cannotWrite(folder, u"the folder can not be made"_s);
    }
    newFolders += folder;
}

void FileSet::add(const QString& path, const QByteArray& contents)
{
    names += path;
    QFile old(path);
    const QFileInfo info(old);
    if (info.exists() && !info.isFile()) {
        throw cannotWrite(path, u"it is not a file"_s);
    }
    QByteArray oldContents;
    if (info.exists()) {
        // What can not be read could not be put back either.
        if (!old.open(QIODevice::ReadOnly)) {
            throw cannotWrite(path, old.errorString());
        }
        oldContents = old.readAll();
        if (oldContents == contents) {
            return;
        }
    }
    makeFolder(Paths::folderOf(path));
    auto file = std::make_unique<QSaveFile>(path);
    fill(*file, contents);
    changed.push_back({std::move(file), oldContents, !info.exists()});
    ++count;
}

void FileSet::addNew(const QString& path, const QByteArray& contents)
{
    if (QFileInfo::exists(path)) {
        add(path, contents);
        return;
    }
    // Thousands of them need neither be held open nor flushed to the disk one by one.
    makeFolder(Paths::folderOf(path));
    QFile file(path);
    newFiles += path;
    fill(file, contents);
    names += path;
    ++count;
}

void FileSet::commit()
{
    size_t placed = 0;
    try {
        for (; placed < changed.size(); ++placed) {
            place(*changed[placed].file);
        }
    } catch (const Failure&) {
        putBack(placed);
        throw;
    }
    isDone = true;
}

void FileSet::putBack(size_t placed)
{
    for (size_t i = 0; i < placed; ++i) {
        const QString path = changed[i].file->fileName();
        if (changed[i].isNew) {
            QFile::remove(path);
            continue;
        }
        QSaveFile again(path);
        if (again.open(QIODevice::WriteOnly) && again.write(changed[i].old) >= 0 && again.flush()) {
            again.commit();
        }
    }
}

void FileSet::rollBack()
{
    // Their temporary files lie in folders that shall go.
    changed.clear();
    for (const QString& file : std::as_const(newFiles)) {
        QFile::remove(file);
    }
    while (!newFolders.isEmpty()) {
        QDir().rmdir(newFolders.takeLast());
    }
}

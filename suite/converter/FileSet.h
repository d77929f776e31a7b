// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

class QSaveFile;

/// Files that are written all or not at all, and only where their contents change.
class FileSet
{
public:
    FileSet();
    ~FileSet();
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;

    /// Puts a file beside its place, its folder made first. What is there already stays untouched until commit().
    /// Throws Failure.
    void add(const QString& path, const QByteArray& contents);
    /// The same for a file that nothing can know yet, because its name tells its contents. It is put into its place at
    /// once, and taken away again unless commit() is reached.
    void addNew(const QString& path, const QByteArray& contents);
    /// The same for a file that is good enough as it is.
    void keep(const QString& path) { names += path; }
    /// Puts everything into its place, in the order in which it was added. Throws Failure and leaves the old files.
    void commit();
    /// How many files changed, or were new.
    qsizetype written() const { return count; }
    /// All that were added or kept.
    const QList<QString>& paths() const { return names; }

private:
    struct Changed
    {
        std::unique_ptr<QSaveFile> file;
        QByteArray old;
        bool isNew;
    };

    void putBack(size_t placed);
    void makeFolder(const QString& folder);
    void rollBack();

    std::vector<Changed> changed;
    QList<QString> names;
    /// What only this set has made, files before their folders when read from the end.
    QList<QString> newFiles;
    QList<QString> newFolders;
    qsizetype count = 0;
    bool isDone = false;
};

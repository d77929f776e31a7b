// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QTemporaryFile;

/// The temporary files of this run: made empty, known by name, removed together.
class TemporaryFiles
{
public:
    TemporaryFiles();
    ~TemporaryFiles();
    TemporaryFiles(const TemporaryFiles&) = delete;
    TemporaryFiles& operator=(const TemporaryFiles&) = delete;

    /// A new empty file whose name ends in the suffix, with a dot before it; an empty text when none can be made.
    QString create(const QString& suffix);
    const QStringList& names() const { return fileNames; }
    /// Leaves this one to the user; the system clears its temporary folder in its own time.
    void keep(const QString& name) { fileNames.removeAll(name); }
    void removeAll();
    /// Removes what runs have left that were killed; what a living run has stays.
    static void removeStale();

private:
    void enlist(const QString& name);

    QStringList fileNames;
    /// Names the files for a later run; locked as long as this one lives.
    std::unique_ptr<QTemporaryFile> list;
};

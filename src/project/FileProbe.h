// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <limits>

/// When files were last modified, asked with as little work as the system allows: the folders of a project are entered
/// once, and nothing is asked below one that does not exist. Times are nanoseconds of the system's clock.
class FileProbe
{
public:
    static constexpr qint64 missing = std::numeric_limits<qint64>::min();

    /// The modification time of any path.
    static qint64 time(const QString& path);

    /// The folders that the next questions are about; absolute.
    void enterFolders(const QString& sources, const QString& outputs);
    qint64 sourceTime(const QString& absolutePath);
    /// The output file that is called like the source, with a suffix.
    qint64 outputTime(QStringView sourceName, const char* suffix);

    FileProbe() = default;
    ~FileProbe();
    FileProbe(const FileProbe&) = delete;
    FileProbe& operator=(const FileProbe&) = delete;

private:
    struct Folder
    {
        QString path;
        int handle = -1;
        bool exists = false;
    };

    static void enter(Folder& folder, const QString& path);
    static void leave(Folder& folder);

    Folder sourceFolder;
    Folder outputFolder;
    QByteArray outputName;
    QHash<QString, bool> otherFolders;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

/// Which files exist. A folder that is asked about again and again is read once.
class FilePresence
{
public:
    /// The path is absolute. Folders and pipes are no files.
    bool isFile(const QString& path);

private:
    struct Folder
    {
        int questions = 0;
        bool isListed = false;
        bool isGone = false;
        QSet<QString> files;
    };

    static void list(const QString& path, Folder& folder);

    QHash<QString, Folder> folders;
};

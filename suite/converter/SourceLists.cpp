// SPDX-License-Identifier: MIT
#include "SourceLists.h"
#include "Failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

void openText(QFile& file, const QString& kind)
{
    const QFileInfo info(file);
    // A pipe or a folder would open, too.
    if (info.isFile() && file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return;
    }
    const QString reason = !info.exists()   ? u"it does not exist"_s
                           : !info.isFile() ? u"it is not a file"_s
                                            : file.errorString();
    throw Failure{u"%1: can not be read (%2). Name an existing %3."_s.arg(file.fileName(), reason, kind)};
}

SourceUnits scanFolder(const QString& folder, const QStringList& extensions, const QStringList& exclude,
                       QStringList& unreadable)
{
    const QFileInfo root(folder);
    if (!root.isDir()) {
        throw Failure{u"%1: is not a folder. Name an existing source folder."_s.arg(folder)};
    }
    if (!root.isReadable() || !root.isExecutable()) {
        throw Failure{u"%1: can not be searched. Ask for the permission to read the folder."_s.arg(folder)};
    }
    SourceUnits units;
    QStringList pending{root.absoluteFilePath()};
    while (!pending.isEmpty()) {
        const QDir current(pending.takeLast());
        if (!QFileInfo(current.path()).isReadable()) {
            unreadable += current.path();
            continue;
        }
        const QFileInfoList entries = current.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        for (const QFileInfo& entry : entries) {
            if (QDir::match(exclude, entry.fileName())) {
                continue;
            }
            if (entry.isDir()) {
                // Links to folders may lead round in a circle.
                if (!entry.isSymLink()) {
                    pending += entry.absoluteFilePath();
                }
            } else if (extensions.contains(entry.suffix())) {
                units += {.path = entry.absoluteFilePath(), .includeFolders = {}, .defines = {}};
            }
        }
    }
    std::ranges::sort(units, {}, &SourceUnit::path);
    return units;
}

SourceUnits readFileList(const QString& fileName)
{
    QFile file(fileName);
    openText(file, u"text file"_s);
    const QDir folder(QFileInfo(fileName).absolutePath());
    SourceUnits units;
    while (!file.atEnd()) {
        const QString line = QString::fromLocal8Bit(file.readLine()).trimmed();
        if (!line.isEmpty() && !line.startsWith(u'#')) {
            units += {.path = QDir::cleanPath(folder.absoluteFilePath(line)), .includeFolders = {}, .defines = {}};
        }
    }
    return units;
}

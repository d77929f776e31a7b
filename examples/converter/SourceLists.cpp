// SPDX-License-Identifier: MIT
#include "SourceLists.h"
#include "Failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

SourceUnits scanFolder(const QString& folder, const QStringList& extensions, const QStringList& exclude)
{
    const QFileInfo root(folder);
    if (!root.isDir()) {
        throw Failure{u"%1: is not a folder. Name an existing source folder."_s.arg(folder)};
    }
    SourceUnits units;
    QStringList pending{root.absoluteFilePath()};
    while (!pending.isEmpty()) {
        const QDir current(pending.takeLast());
        // Links are not followed: they may lead round in a circle.
        const QFileInfoList entries =
            current.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot);
        for (const QFileInfo& entry : entries) {
            if (QDir::match(exclude, entry.fileName())) {
                continue;
            }
            if (entry.isDir()) {
                pending += entry.absoluteFilePath();
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
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        throw Failure{u"%1: can not be read. Name an existing text file."_s.arg(fileName)};
    }
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

// SPDX-License-Identifier: MIT
#include "ProjectTree.h"
#include "Arguments.h"
#include "Failure.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

QString folderOf(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash > 0 ? path.first(slash) : u"/"_s;
}

bool isBelow(const QString& path, const QString& folder)
{
    return path.startsWith(folder) &&
           (path.size() == folder.size() || folder.endsWith(u'/') || path[folder.size()] == u'/');
}

QString commonFolder(const QStringList& files)
{
    QString common = folderOf(files.first());
    for (const QString& file : files) {
        while (!isBelow(file, common)) {
            const QString parent = folderOf(common);
            if (parent == common) {
                throw Failure{
                    u"%1 and %2 have no folder in common. Convert them separately."_s.arg(files.first(), file)};
            }
            common = parent;
        }
    }
    return common;
}

bool isOwnLanguage(const QString& path, bool forC)
{
    return (QFileInfo(path).suffix() == "c"_L1) == forC;
}

void addNew(QStringList& list, QSet<QString>& seen, const QStringList& more)
{
    for (const QString& text : more) {
        if (!seen.contains(text)) {
            seen.insert(text);
            list += text;
        }
    }
}

} // namespace

qsizetype ProjectTree::fileCount() const
{
    qsizetype count = root.files.size();
    for (const Node& node : subProjects) {
        count += node.files.size();
    }
    return count;
}

ProjectTree ProjectTree::build(const SourceUnits& units, const Arguments& arguments)
{
    ProjectTree tree;
    QStringList files;
    QSet<QString> seenFiles;
    QSet<QString> seenFolders;
    QSet<QString> seenDefines;
    for (const SourceUnit& unit : units) {
        if (seenFiles.contains(unit.path)) {
            ++tree.duplicates;
            continue;
        }
        seenFiles.insert(unit.path);
        if (arguments.onlyOwnLanguage && !isOwnLanguage(unit.path, arguments.forC)) {
            ++tree.otherLanguage;
            continue;
        }
        if (!QFileInfo(unit.path).isFile()) {
            tree.missing += unit.path;
            if (!arguments.keepMissing) {
                continue;
            }
        }
        files += unit.path;
        addNew(tree.includeFolders, seenFolders, unit.includeFolders);
        addNew(tree.defines, seenDefines, unit.defines);
    }
    addNew(tree.defines, seenDefines, arguments.defines);
    if (files.isEmpty()) {
        throw Failure{u"no source file is left for the project: %1 given, %2 do not exist, %3 are in another language. "
                      "Check the input."_s.arg(units.size())
                          .arg(tree.missing.size())
                          .arg(tree.otherLanguage)};
    }

    tree.root.name = arguments.name;
    tree.root.sourceDir = commonFolder(files);
    if (!arguments.subProjects) {
        tree.root.files = files;
        return tree;
    }
    QMap<QString, QStringList> byFolder;
    for (const QString& file : files) {
        byFolder[folderOf(file)] += file;
    }
    tree.root.files = byFolder.take(tree.root.sourceDir);
    const QDir rootDir(tree.root.sourceDir);
    for (auto folder = byFolder.cbegin(); folder != byFolder.cend(); ++folder) {
        const QString name = rootDir.relativeFilePath(folder.key());
        tree.subProjects += {.name = name, .sourceDir = folder.key(), .outputSubFolder = name, .files = folder.value()};
    }
    return tree;
}

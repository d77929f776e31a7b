// SPDX-License-Identifier: MIT
#include "ImportReader.h"
#include "../Notices.h"
#include "PathFinder.h"
#include "Wildcards.h"
#include "XmlElement.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString folderOf(const QString& file)
{
    return QFileInfo(file).absolutePath();
}

} // namespace

QList<ProjectGroup> ImportReader::read()
{
    readFile(context.projectFile);
    return groups;
}

void ImportReader::readFile(const QString& path)
{
    readFiles.insert(path);
    openFiles += path;
    const XmlElement& root = context.files.load(path, u"project file"_s);
    if (root.name == "Project"_L1) {
        walk(root, path);
    } else {
        context.notices.leaveOut(path, root.line, u"<%1>"_s.arg(root.name), u"<Project> is wanted"_s);
    }
    openFiles.removeLast();
}

void ImportReader::walk(const XmlElement& parent, const QString& file)
{
    for (const XmlElement& element : parent.children) {
        if (element.name == "ItemGroup"_L1 || element.name == "ItemDefinitionGroup"_L1) {
            groups += {&element, file};
        } else if (element.name == "Choose"_L1) {
            choose(element, file);
        } else if (element.name == "PropertyGroup"_L1 || element.name == "ImportGroup"_L1 ||
                   element.name == "Import"_L1) {
            if (!context.holds(element, file, folderOf(file))) {
                continue;
            }
            if (element.name == "PropertyGroup"_L1) {
                setProperties(element, file);
            } else if (element.name == "Import"_L1) {
                import(element, file);
            } else {
                walk(element, file);
            }
        }
    }
}

void ImportReader::setProperties(const XmlElement& group, const QString& file)
{
    for (const XmlElement& property : group.children) {
        if (!context.holds(property, file, folderOf(file))) {
            continue;
        }
        QString value = context.expand(property.text.trimmed(), file);
        // To add to what nobody has set yet is no mistake.
        value.remove(UnknownMacros::mark(property.name), Qt::CaseInsensitive);
        context.properties.set(property.name, value);
    }
}

void ImportReader::choose(const XmlElement& element, const QString& file)
{
    for (const XmlElement& branch : element.children) {
        const bool isTaken = branch.name == "Otherwise"_L1 ||
                             (branch.name == "When"_L1 && context.holds(branch, file, context.projectFolder));
        if (isTaken) {
            walk(branch, file);
            return;
        }
    }
}

void ImportReader::import(const XmlElement& element, const QString& file)
{
    const QString project = element.attribute(u"Project"_s);
    const QString path = context.expand(project, file);
    if (!element.attribute(u"Sdk"_s).isEmpty()) {
        return;
    }
    if (UnknownMacros::isIn(path) && UnknownMacros::areTheCompilers(path)) {
        // These two would look for the files that a folder gives to all projects below it.
        if (path.endsWith("Microsoft.Cpp.Default.props"_L1, Qt::CaseInsensitive)) {
            importAbove(u"Directory.Build.props"_s);
        } else if (path.endsWith("Microsoft.Cpp.targets"_L1, Qt::CaseInsensitive)) {
            importAbove(u"Directory.Build.targets"_s);
        }
        return;
    }
    const QStringList parts = context.entries({path, file, element.line});
    for (const QString& part : parts) {
        const QStringList found = Wildcards::isIn(part) ? Wildcards::find(folderOf(file), part, context.paths)
                                                        : QStringList{context.paths.find(folderOf(file), part)};
        for (const QString& one : found) {
            importOne(one, element, file);
        }
    }
}

void ImportReader::importOne(const QString& path, const XmlElement& element, const QString& file)
{
    const QFileInfo info(path);
    const auto leaveOut = [&](const QString& reason) {
        context.notices.leaveOut(file, element.line, u"the import of %1"_s.arg(path), reason);
    };
    if (!info.exists()) {
        leaveOut(u"the file does not exist"_s);
    } else if (!info.isFile() || !info.isReadable()) {
        leaveOut(u"it can not be read"_s);
    } else if (openFiles.contains(path)) {
        leaveOut(u"it imports itself, directly or through others"_s);
    } else if (!readFiles.contains(path)) {
        readFile(path);
    }
}

void ImportReader::importAbove(const QString& fileName)
{
    QString folder = context.projectFolder;
    QString path = context.paths.find(folder, fileName);
    while (!QFileInfo(path).isFile()) {
        const QString above = folderOf(folder);
        if (above == folder) {
            return;
        }
        folder = above;
        path = context.paths.find(folder, fileName);
    }
    if (!readFiles.contains(path)) {
        context.notices.say(u"%1 counts for the projects below its folder and is read"_s.arg(path));
        readFile(path);
    }
}

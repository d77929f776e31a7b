// SPDX-License-Identifier: MIT
#include "ItemReader.h"
#include "../Notices.h"
#include "PathFinder.h"
#include "Wildcards.h"
#include "XmlElement.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr auto sources = "ClCompile"_L1;

// What an item tells about its own file; null for what is no name of that kind.
QString wellKnown(const QString& name, const QString& path, const QString& projectFolder)
{
    const QFileInfo info(path);
    if (name == "filename"_L1) {
        return info.completeBaseName();
    }
    if (name == "extension"_L1) {
        return u'.' + info.suffix();
    }
    if (name == "fullpath"_L1) {
        return path;
    }
    if (name == "identity"_L1) {
        return QDir(projectFolder).relativeFilePath(path);
    }
    if (name == "rootdir"_L1) {
        return u"/"_s;
    }
    if (name == "directory"_L1) {
        return info.path().sliced(1) + u'/';
    }
    if (name == "relativedir"_L1) {
        return QDir(projectFolder).relativeFilePath(info.path()) + u'/';
    }
    return {};
}

} // namespace

QList<SourceItem> ItemReader::read(const QList<ProjectGroup>& groups)
{
    for (const ProjectGroup& group : groups) {
        if (group.element->name == "ItemDefinitionGroup"_L1) {
            readDefaults(group);
        }
    }
    for (const ProjectGroup& group : groups) {
        if (group.element->name == "ItemGroup"_L1) {
            readItems(group);
        }
    }
    return items;
}

void ItemReader::readDefaults(const ProjectGroup& group)
{
    if (!context.holds(*group.element, group.file, context.projectFolder)) {
        return;
    }
    for (const XmlElement& element : group.element->children) {
        if (element.name == sources && context.holds(element, group.file, context.projectFolder)) {
            apply(element, group.file, defaults, {});
        }
    }
}

void ItemReader::readItems(const ProjectGroup& group)
{
    // Its other items need no answer whether their conditions are understood.
    const bool hasSources =
        std::ranges::any_of(group.element->children, [](const XmlElement& element) { return element.name == sources; });
    if (!hasSources || !context.holds(*group.element, group.file, context.projectFolder)) {
        return;
    }
    for (const XmlElement& element : group.element->children) {
        if (element.name != sources || !context.holds(element, group.file, context.projectFolder)) {
            continue;
        }
        include(element, group.file);
        update(element, group.file);
        remove(element, group.file);
    }
}

void ItemReader::include(const XmlElement& element, const QString& file)
{
    const QStringList excluded = pathsOf(element, u"Exclude"_s, file);
    const QStringList paths = pathsOf(element, u"Include"_s, file);
    for (const QString& path : paths) {
        if (!excluded.contains(path)) {
            SourceItem item{.path = path, .settings = defaults};
            apply(element, file, item.settings, path);
            items += item;
        }
    }
}

void ItemReader::update(const XmlElement& element, const QString& file)
{
    const QStringList paths = pathsOf(element, u"Update"_s, file);
    for (SourceItem& item : items) {
        if (paths.contains(item.path)) {
            apply(element, file, item.settings, item.path);
        }
    }
}

void ItemReader::remove(const XmlElement& element, const QString& file)
{
    const QStringList paths = pathsOf(element, u"Remove"_s, file);
    if (!paths.isEmpty()) {
        items.removeIf([&](const SourceItem& item) { return paths.contains(item.path); });
    }
}

void ItemReader::apply(const XmlElement& element, const QString& file, Settings& settings, const QString& path)
{
    static const QSet<QString> notSettings{u"Include"_s, u"Exclude"_s,   u"Update"_s,
                                           u"Remove"_s,  u"Condition"_s, u"Label"_s};
    for (const auto& [name, value] : element.attributes) {
        if (!notSettings.contains(name)) {
            set(name, value, {{}, file, element.line}, settings, path);
        }
    }
    for (const XmlElement& child : element.children) {
        const auto ownMetadata = [&](const QString& text) { return metadata(text, settings, path); };
        if (context.holds(child, file, context.projectFolder, ownMetadata)) {
            set(child.name, child.text, {{}, file, child.line}, settings, path);
        }
    }
}

void ItemReader::set(const QString& name, const QString& value, const Setting& place, Settings& settings,
                     const QString& path)
{
    const QString expanded = metadata(context.expand(value.trimmed(), place.file), settings, path);
    settings.insert(name.toLower(), {expanded, place.file, place.line});
}

QString ItemReader::metadata(const QString& text, const Settings& settings, const QString& path) const
{
    static const QRegularExpression reference(u"%\\(\\s*(?:[\\w-]+\\.)?([\\w-]+)\\s*\\)"_s);
    QString result;
    qsizetype position = 0;
    for (const QRegularExpressionMatch& match : reference.globalMatch(text)) {
        const QString name = match.captured(1).toLower();
        const QString known = path.isEmpty() ? QString() : wellKnown(name, path, context.projectFolder);
        result += QStringView(text).sliced(position, match.capturedStart() - position);
        result += known.isNull() ? settings.value(name).text : known;
        position = match.capturedEnd();
    }
    return result + text.sliced(position);
}

QStringList ItemReader::pathsOf(const XmlElement& element, const QString& attribute, const QString& file)
{
    QStringList paths;
    const QString list = element.attribute(attribute);
    if (list.isEmpty()) {
        return paths;
    }
    const QStringList parts = context.entries({context.expand(list, file), file, element.line});
    for (const QString& part : parts) {
        if (part.startsWith("@("_L1)) {
            context.notices.leaveOut(file, element.line, u"\"%1\""_s.arg(part), u"it is made by the build itself"_s);
        } else if (Wildcards::isIn(part)) {
            const QStringList found = Wildcards::find(context.projectFolder, part, context.paths);
            if (found.isEmpty() && attribute == "Include"_L1) {
                context.notices.leaveOut(file, element.line, u"\"%1\""_s.arg(part), u"no file matches"_s);
            }
            paths += found;
        } else {
            paths += context.paths.find(context.projectFolder, part);
        }
    }
    return paths;
}

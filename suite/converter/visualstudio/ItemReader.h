// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectContext.h"

/// A source with all its settings, those of the project included.
struct SourceItem
{
    /// Absolute.
    QString path;
    Settings settings;

    QString text(const QString& name) const { return settings.value(name).text; }
};

/// Makes the sources of the groups that ImportReader has collected: first the defaults of all groups count, then the
/// items, each with its own settings.
class ItemReader
{
public:
    /// usual: what the build tools set.
    ItemReader(ProjectContext& project, Settings usual)
        : context(project)
        , defaults(std::move(usual))
    {
    }

    QList<SourceItem> read(const QList<ProjectGroup>& groups);

private:
    void readDefaults(const ProjectGroup& group);
    void readItems(const ProjectGroup& group);
    void include(const XmlElement& element, const QString& file);
    void update(const XmlElement& element, const QString& file);
    void remove(const XmlElement& element, const QString& file);
    void apply(const XmlElement& element, const QString& file, Settings& settings, const QString& path);
    void set(const QString& name, const QString& value, const Setting& place, Settings& settings, const QString& path);
    QString metadata(const QString& text, const Settings& settings, const QString& path) const;
    QStringList pathsOf(const XmlElement& element, const QString& attribute, const QString& file);

    ProjectContext& context;
    Settings defaults;
    QList<SourceItem> items;
};

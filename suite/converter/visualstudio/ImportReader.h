// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectContext.h"

#include <QSet>

/// Reads a project file and all that it imports, in order: sets the macros on the way and collects the groups of items
/// for when all macros are known. What the build tools bring themselves is passed over.
class ImportReader
{
public:
    explicit ImportReader(ProjectContext& project)
        : context(project)
    {
    }

    /// Throws Failure for a file that is no XML.
    QList<ProjectGroup> read();

private:
    void readFile(const QString& path);
    void walk(const XmlElement& parent, const QString& file);
    void setProperties(const XmlElement& group, const QString& file);
    void choose(const XmlElement& element, const QString& file);
    void import(const XmlElement& element, const QString& file);
    void importOne(const QString& path, const XmlElement& element, const QString& file);
    void importAbove(const QString& fileName);

    ProjectContext& context;
    QList<ProjectGroup> groups;
    QSet<QString> readFiles;
    QStringList openFiles;
};

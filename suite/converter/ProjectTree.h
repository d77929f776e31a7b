// SPDX-License-Identifier: MIT
#pragma once

#include "OptionPool.h"
#include "ProjectSources.h"

#include <QList>
#include <QString>
#include <QStringList>

struct Arguments;

/// A project as it will be written: the root's files, then a flat list of parts.
struct ProjectTree
{
    struct Node
    {
        QString name;
        /// Absolute.
        QString sourceDir;
        /// Relative to the output folder; empty for the folder itself.
        QString outputSubFolder;
        /// Absolute paths.
        QStringList files;
        /// A set of the pool; -1 when the root's options are all.
        int options = -1;
        /// A compiler of the sources; -1 for the root's.
        int compiler = -1;
    };

    Node root;
    QList<Node> parts;
    /// What every part is built with.
    OptionPool::Set shared;

    qsizetype fileCount() const;
    /// Sorts the sources into parts.
    static ProjectTree build(const Sources& sources, const ProjectSources& kept, const Arguments& arguments);
};

// SPDX-License-Identifier: MIT
#pragma once

#include "SourceUnit.h"

struct Arguments;

/// A project as it will be written: the root's files, then one sub-project for each further folder.
struct ProjectTree
{
    struct Node
    {
        QString name;
        /// Absolute.
        QString sourceDir;
        /// Relative to the output folder; empty for the root.
        QString outputSubFolder;
        /// Absolute paths.
        QStringList files;
    };

    Node root;
    QList<Node> subProjects;
    QStringList includeFolders;
    QStringList defines;
    qsizetype duplicates = 0;
    qsizetype otherLanguage = 0;
    QStringList missing;

    qsizetype fileCount() const;
    /// Sorts the units into projects; leaves out what the arguments do not want. Throws Failure when nothing is left.
    static ProjectTree build(const SourceUnits& units, const Arguments& arguments);
};

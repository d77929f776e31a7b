// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerPersonality.h"

#include <QHash>
#include <QStringList>

struct Arguments;
struct ProjectTree;
struct Sources;

/// What writing a project came to.
struct WrittenProject
{
    qsizetype changedFiles = 0;
    /// Where everything that was left out is listed; empty when nothing was.
    QString logFile;
    /// Configuration files that no part uses any more but that hold options of the user.
    QStringList unusedFiles;
};

/// Writes the project file and the configuration files that it names, all or none: throws Failure and leaves what was
/// there. Files that are the same already are not touched; those of an earlier conversion that nothing needs any more
/// are removed.
WrittenProject writeProject(const ProjectTree& tree, const Sources& sources,
                            const QHash<int, CompilerPersonality>& compilers, const Arguments& arguments);

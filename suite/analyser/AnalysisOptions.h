// SPDX-License-Identifier: MIT
#pragma once

#include "MessageSelection.h"

#include <QList>
#include <QString>
#include <QStringList>

/// How a compiler searches an include folder.
enum class FolderKind { Normal, Quote, System, After };

struct IncludeFolder
{
    QString path;
    FolderKind kind = FolderKind::Normal;
};

/// What option and list files, or a command line, tell the analyser.
struct AnalysisOptions
{
    /// A listed source with the output folder that it was listed under.
    struct Source
    {
        QString path;
        QString outputFolder;
    };

    // What sources are compiled with.
    /// NAME or NAME=VALUE, each name once, as the last word on it was.
    QStringList defines;
    QStringList undefines;
    QList<IncludeFolder> folders;
    /// Those that the compiler searches by itself.
    QStringList builtinFolders;
    QStringList forcedIncludes;
    QStringList macroFiles;
    QString standard;
    /// "c" or "c++" for every source; empty: by the ending of each.
    QString language;
    QStringList target;
    QString compiler;

    // What is looked for.
    QStringList checks{QStringLiteral("warning"), QStringLiteral("style"), QStringLiteral("performance"),
                       QStringLiteral("portability")};
    QStringList addons;
    QStringList libraries;
    QString platform;
    bool inconclusive = false;
    MessageSelection messages;
    /// Names of the compliance modules and coding standards in force.
    QStringList modules;

    // What a tool was told to work on.
    QString projectFile;
    QString outputFolder;
    QList<Source> sources;
    QString crossModuleFile;
    /// The option files that were read, in order.
    QStringList files;
};

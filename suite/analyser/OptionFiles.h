// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What the suite's option and list files tell a tool.
struct ToolOptions
{
    /// An analysed source with the output folder it was listed under.
    struct Source
    {
        QString path;
        QString outputFolder;
    };

    QString projectFile;
    QString outputFolder;
    QStringList includeFolders;
    QStringList defines;
    QList<Source> sources;
    QString crossModuleFile;
};

/// Reads a command line with -via, -list, -prj, -outputpath, -i, -d and -cmaf; option files may name further ones.
/// Options of the analyser itself are passed over. Throws a QString that says which file can not be read.
ToolOptions readOptions(const QStringList& arguments);

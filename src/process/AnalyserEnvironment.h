// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/TraceFunction.h"

#include <QString>
#include <QStringList>

/// Where the programs of the suite and its analysers lie.
struct EnvironmentFolders
{
    QString binArea;
    QString installPath;
    QStringList searchPaths;
    QString currentFolder;
    QString cInstallDir;
    QString cppInstallDir;
};

/// The environment under which analyser programs run: PATH, in any letter case where names have none,
/// extended by the suite's folders, and with
/// analyserVariables the variables of the analysers that exist. Entries are NAME=value in the order given.
QStringList analyserEnvironment(QStringList environment, const EnvironmentFolders& folders, bool analyserVariables,
                                const TraceFunction& trace = {});

/// Sets name to the native form of value, in place when the list has it in any letter case. An entry that is there
/// already is neither changed nor traced.
void SetToEnvValue(QStringList& environment, const QString& name, const QString& value,
                   const TraceFunction& trace = {});

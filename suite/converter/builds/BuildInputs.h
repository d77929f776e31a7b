// SPDX-License-Identifier: MIT
#pragma once

#include "../BuildCommand.h"
#include "../visualstudio/BuildConfiguration.h"
#include "MakeRecord.h"

class Notices;
class QCommandLineParser;

/// What the command line says of a build system that has to be asked.
struct BuildInputs
{
    static void declare(QCommandLineParser& parser);
    static BuildInputs from(const QCommandLineParser& parser);
    /// How many build systems are named; more than one makes no sense.
    int count() const;

    QString visualStudio = {};
    BuildConfiguration configuration = {};
    QString cmakeSource = {};
    QString cmakeOptions = {};
    MakeRequest make = {};
    QString buildFolder = {};
};

/// What a build system answers: a compilation database, or the commands themselves.
struct BuildAnswer
{
    QString database = {};
    BuildCommands commands;
};

/// Asks the one that is named; what it makes lies beside the project file. Throws Failure.
BuildAnswer askBuildSystem(const BuildInputs& inputs, const QString& projectFile, Notices& notices);

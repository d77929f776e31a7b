// SPDX-License-Identifier: MIT
#pragma once

#include "builds/BuildInputs.h"

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct Arguments
{
    QString compileCommands;
    QString sourceFolder;
    QString fileList;
    BuildInputs build = {};
    QString output;
    QString name;
    bool forC = false;
    /// The C analyser takes files ending in .c only; the C++ analyser takes C sources too.
    bool onlyOwnLanguage = false;
    QString compilerPersonality;
    QString analyserPersonality;
    QString messagePersonality;
    QString outputFolder;
    QStringList extensions;
    /// Patterns of what is left out.
    QStringList exclude;
    QStringList defines;
    /// Absolute.
    QStringList includeFolders;
    /// Whether compilers are asked what they predefine.
    bool compilerMacros = true;
    bool subProjects = false;
    bool keepMissing = false;
    bool absolutePaths = false;

    /// Throws Failure for wrong arguments; prints and ends the program for --help and --version.
    static Arguments parse(const QStringList& commandLine);
};

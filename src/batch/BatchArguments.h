// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/ConfigurationKind.h"

#include <QMap>
#include <QString>
#include <QStringList>

/// What the command line asks of a run without a window.
struct BatchArguments
{
    enum class Task { Usage, Help, ListTypes, ListInputs, Check, Run, Convert };
    enum class Analyser { Open, C, Cpp };

    Task task = Task::Usage;
    QString projectFile;
    /// The conversion type's name.
    QString type;
    /// Inputs as given, <name>=<value>; the name may hold a "=" itself.
    QStringList inputs;
    Analyser analyser = Analyser::Open;
    /// The configuration files that were given.
    QMap<ConfigurationKind, QString> configurations;
    /// The compliance module's name.
    QString module;
    /// The definitions file to be checked.
    QString checkedFile;
    /// The launcher's name.
    QString launcher;
    /// 0: as long as it takes.
    int timeoutSeconds = 0;
    bool overwrite = false;
    bool json = false;
    bool dryRun = false;
    bool quiet = false;
    /// What is wrong with the command line; empty when nothing is.
    QString error;

    /// Reads the arguments that belong to -batch; unknown ones, and ones that do not go together, are an error. The
    /// first argument is the program.
    static BatchArguments parse(const QStringList& arguments);
    static bool isBatch(const QStringList& arguments);
    static QString usage();
};

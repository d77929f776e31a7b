// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks of a conversion without a window.
struct BatchArguments
{
    enum class Task { Usage, ListTypes, ListInputs, Convert };

    Task task = Task::Usage;
    QString projectFile;
    /// The conversion type's name.
    QString type;
    /// Inputs as given, <name>=<value>; the name may hold a "=" itself.
    QStringList inputs;
    bool overwrite = false;
    bool json = false;
    /// What is wrong with the command line; empty when nothing is.
    QString error;

    /// Reads the arguments that belong to -batch and checks that the others are known. The first argument is the
    /// program.
    static BatchArguments parse(const QStringList& arguments);
    static bool isBatch(const QStringList& arguments);
    static QString usage();
};

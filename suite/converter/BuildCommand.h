// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// How one source is compiled, as a reader of build descriptions gives it.
struct BuildCommand
{
    /// Absolute; what relative paths of the command count from.
    QString directory;
    /// As the description writes it, relative to the directory or absolute.
    QString file;
    /// The compiler first, divided into words.
    QStringList arguments;
    /// What the source is built for; empty where the description names nothing.
    QString target;
    /// Whether @files inside follow Windows' rules for words, and whether paths compare without case.
    bool windows = false;
};

using BuildCommands = QList<BuildCommand>;

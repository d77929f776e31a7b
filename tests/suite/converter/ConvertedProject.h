// SPDX-License-Identifier: MIT
#pragma once

#include "Installation.h"

#include <QList>
#include <QString>
#include <QStringList>

/// Sources and a build description in a temporary folder, and what the converter makes of them.
class ConvertedProject : public Installation
{
public:
    struct Part
    {
        QString name;
        QString sourceDir;
        QString outputDir;
        QString analyser;
        QString compiler;
        /// As the project file lists them.
        QStringList files;
    };

    QString work(const QString& name) const { return path(QStringLiteral("work/") + name); }
    /// Writes work/db.json with these entries; relative sources that do not exist yet are made.
    void writeDatabase(const QByteArray& entries) const;
    /// The same for one source.
    void writeCommand(const QString& file, const QString& command, const QString& directory = {}) const;
    /// The same for commands that name their source last.
    void writeCommands(const QStringList& commands) const;
    /// Converts to work/p.prj for the C++ analyser, without asking compilers unless the arguments say otherwise.
    ProgramResult convert(const QStringList& arguments) const;
    /// The same for work/db.json, a sub-project a folder.
    ProgramResult convertDatabase(const QStringList& more = {}) const;

    /// The parts that hold files, personalities resolved.
    QList<Part> parts() const;
    /// The files of all parts, sorted.
    QString files() const;
    /// The part of a file, by the end of its path; one without a name when there is none.
    Part partOf(const QString& file) const;
    /// The lines of a configuration file with those that it reads first, without comments.
    QStringList options(const QString& file) const;
    /// The options of a source, work/ written as "~".
    QStringList optionsOf(const QString& file) const;
};

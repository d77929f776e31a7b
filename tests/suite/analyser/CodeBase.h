// SPDX-License-Identifier: MIT
#pragma once

#include "Installation.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// Sources that are compiled alike: what a project part says of them, and a compilation database too.
struct CodePart
{
    /// Below the code base; its results go to a folder of its own.
    QString folder = {};
    QStringList files = {};
    QStringList defines = {};
    QStringList undefines = {};
    QStringList includeFolders = {};
    QString standard = {};
    /// Further lines of the option file.
    QString options = {};
};

/// A code base in a temporary folder, with its project file and the analyser that ships with the suite.
class CodeBase
{
public:
    CodeBase();

    QString path(const QString& name = {}) const { return name.isEmpty() ? folder.path() : folder.filePath(name); }
    QString write(const QString& name, const QByteArray& contents) const;
    /// Also a file anywhere, by its absolute path.
    QByteArray read(const QString& name) const;
    /// Makes a file newer than all results.
    void touch(const QString& name) const;
    /// A program that stands in for another one of this name.
    void replaceProgram(const QString& name, const QByteArray& script) const;

    /// Writes p.prj with a part for each of these; message and compiler personality are the root's.
    void project(const QList<CodePart>& parts, const QByteArray& messages = {}) const;
    /// Runs orv, or the tool of a launcher; where nothing else is said with two jobs.
    ProgramResult run(const QString& command, const QString& tool = QStringLiteral("orv"),
                      const Variables& more = {}) const;
    /// The sources that Ninja told, sorted.
    static QStringList analysedIn(const ProgramResult& result);

    /// The messages of all results, each once, sorted.
    QStringList messages() const;
    /// What cppcheck says over a compilation database of the same parts.
    QStringList messagesByHand(const QList<CodePart>& parts, const QStringList& options) const;

    static QStringList sortedLines(const QByteArray& text);

private:
    Variables environment(const Variables& more) const;

    QTemporaryDir folder;
};

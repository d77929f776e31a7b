// SPDX-License-Identifier: MIT
#pragma once

#include "Installation.h"

#include <QList>
#include <QString>
#include <QStringList>

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
class CodeBase : public TestFolder
{
public:
    /// Reads beyond its array for most values of SIZE.
    static constexpr char overrun[] = "int f() { int v[2] = {0, 0}; return v[SIZE]; }\n";

    CodeBase();

    using TestFolder::path;
    QString path() const { return folder.path(); }
    /// Makes a file newer than all results.
    void touch(const QString& name) const { write(name, read(name)); }
    /// A program that does these verbs of testchild in place of another one of this name, until that is back.
    void replaceProgram(const QString& name, const QByteArray& verbs) const
    {
        writeChild(QStringLiteral("bin/") + name, verbs);
    }
    void restoreProgram(const QString& name) const;
    /// Writes these sources in the folder "one", each with an overrun behind that head; gives the part that they are.
    CodePart overrunning(const QStringList& files, const QByteArray& head = {}) const;

    /// Writes p.prj with a part for each of these; message and compiler personality are the root's.
    void project(const QList<CodePart>& parts, const QByteArray& messages = {}) const;
    /// Runs orv, or the tool of a launcher; where nothing else is said with two jobs.
    ProgramResult run(const QString& command, const QString& tool = QStringLiteral("orv"),
                      const Variables& more = {}) const;
    /// Analyses p.prj with these options; gives the sources that Ninja told, sorted.
    QStringList analyse(const QString& options = {}) const;

    /// The messages of all results, each once, sorted.
    QStringList messages() const;
    /// Those that show in one source by itself.
    QStringList messagesOfSources() const;
    /// What cppcheck says over a compilation database of the same parts.
    QStringList messagesByHand(const QList<CodePart>& parts, const QStringList& options = {}) const;

private:
    Variables environment(const Variables& more = {}) const;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QMessageBox>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <utility>

class AppRegistry;
class QTimer;

/// A suite installed in a temporary folder: bin, xml and both analysers, with a registry that loads it.
class Installation
{
public:
    Installation();
    ~Installation();

    QString path(const QString& name) const { return folder.filePath(name); }
    /// Writes a file below the folder, making its folders and giving it that time, if any; gives its path.
    QString write(const QString& name, const QByteArray& contents, const QDateTime& time = {}) const;
    /// The same for a shell script that can be run.
    QString writeScript(const QString& name, const QByteArray& body) const;
    /// Reads a file below the folder, or anywhere by its absolute path; empty when it can not be read.
    QByteArray read(const QString& name) const;
    /// True while the process with this id, as a script wrote it, runs.
    static bool isAlive(const QByteArray& pid);
    /// Writes xml/settings.xml around the given elements.
    void define(const QByteArray& elements) const;
    /// Starts the registry anew as the program does, with these options.
    AppRegistry& start(const QStringList& options = {});

private:
    QTemporaryDir folder;
    QByteArray searchPath;
    std::unique_ptr<AppRegistry> registry;
};

/// Answers message boxes while it lives and remembers what they said. Other dialogs are rejected.
class BoxAnswers
{
public:
    explicit BoxAnswers(QList<QMessageBox::StandardButton> answers);
    ~BoxAnswers();

    /// The title of each and its text, if any, divided by a bar.
    QStringList texts;
    /// What stands behind the "Show Details" of each box.
    QStringList details;

private:
    void answer();

    QList<QMessageBox::StandardButton> answers;
    std::unique_ptr<QTimer> timer;
};

using Variables = QList<std::pair<QString, QString>>;

struct ProgramResult
{
    /// -1 when the program did not end by itself.
    int status;
    QString output;
    QString errors;
};

/// Runs a program to its end, without a display, a home and a locale but with these variables, in this folder if any.
ProgramResult runProgram(const QString& name, const QStringList& arguments,
                         const Variables& variables = {{QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8")}},
                         const QString& folder = {});

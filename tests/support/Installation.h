// SPDX-License-Identifier: MIT
#pragma once

#include "TestFolder.h"

#include <QByteArray>
#include <QMessageBox>
#include <QStringList>

#include <memory>
#include <utility>

class AppRegistry;
class QTimer;

/// A suite installed in a temporary folder: bin, xml and both analysers, with a registry that loads it.
class Installation : public TestFolder
{
public:
    Installation();
    ~Installation();

    /// Writes xml/settings.xml around the given elements.
    void define(const QByteArray& elements) const;
    /// Starts the registry anew as the program does, with these options.
    AppRegistry& start(const QStringList& options = {});

private:
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
    /// What stands below the text of each.
    QStringList additions;

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

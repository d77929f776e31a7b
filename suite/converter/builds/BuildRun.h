// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

class QProcess;

/// A build tool that runs to its end, with all that it starts. Its output goes on at once to ours, unless it goes to a
/// file. SIGTERM, SIGINT and SIGHUP stop it with all its children.
class BuildRun
{
public:
    BuildRun(const QString& toolName, const QStringList& toolArguments)
        : program(toolName)
        , arguments(toolArguments)
    {
    }

    /// Throws Failure, which names the package to install, when there is no such program.
    static void require(const QString& program, const QString& package);

    void setFolder(const QString& name) { folder = name; }
    void setEnvironment(const QProcessEnvironment& variables) { environment = variables; }
    /// What the tool prints on its standard output is data.
    void setOutputFile(const QString& name) { outputFile = name; }

    /// True when the tool ended by itself; false when it was stopped by a signal. Throws Failure when it can not be
    /// started.
    bool run();

    /// Empty when the tool ended well, else how it ended and the last lines that it printed.
    QString problem() const;

private:
    void prepare(QProcess& process);
    void pass(const QByteArray& text);

    QString program;
    QStringList arguments;
    QString folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QString outputFile;
    QString ending;
    QByteArray tail;
};

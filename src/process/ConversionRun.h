// SPDX-License-Identifier: MIT
#pragma once

#include "process/ChildProcess.h"

#include <QObject>
#include <QString>
#include <QStringDecoder>
#include <QStringList>

/// Runs a conversion program and judges the result by the project file it leaves. Knows nothing of widgets: the page
/// and the batch mode show what it reports.
class ConversionRun : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        Created,    ///< the program ended and the project file is there, whatever the exit code
        NotCreated, ///< the program ended without one
        NotStarted,
        Failed, ///< the program crashed or could not be talked to
        Stopped ///< stop() was called
    };
    Q_ENUM(Outcome)

    /// The program enters the list of children, if any.
    explicit ConversionRun(ChildList* siblings = nullptr, QObject* parent = nullptr);
    ~ConversionRun() override;

    /// Starts the program and removes an old project file, which stays when the program can not be started; false then,
    /// with the end already reported.
    bool start(const QString& program, const QStringList& arguments, const QString& projectFile);
    /// Stops the program with its children and removes a half-made project file.
    void stop();
    bool isRunning() const { return running; }
    /// What the program printed since the last call, both channels merged, characters never cut in two.
    QString takeOutput();
    Outcome outcome() const { return result; }
    /// What the system or the exit code had to say about the end; empty for a plain success.
    QString detail() const { return detailText; }
    /// How a run ended, as the page and the batch mode tell it.
    static QString endText(Outcome outcome, const QString& projectFile);
    ChildProcess& child() { return process; }

Q_SIGNALS:
    /// The program is being started with this command line, unquoted.
    void commandStarted(const QString& command);
    void outputReady();
    /// Emitted once for every start().
    void ended(ConversionRun::Outcome outcome);

private:
    bool putOldFileAside();
    void forgetOldFile();
    void processFinished();
    void processFailed(QProcess::ProcessError error);
    void finish(Outcome outcome, const QString& detail);

    ChildProcess process;
    QStringDecoder decoder;
    QString projectFileName;
    QString detailText;
    /// Where the old project file waits for the program's start.
    QString oldFile;
    Outcome result = Outcome::NotStarted;
    bool running = false;
    bool stopping = false;
};

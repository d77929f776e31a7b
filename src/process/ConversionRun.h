// SPDX-License-Identifier: MIT
#pragma once

#include "process/ChildProcess.h"
#include "process/OutputDecoder.h"
#include "process/ProjectPlace.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

/// Runs a conversion program and judges the result by the project file it leaves. Knows nothing of widgets: the page
/// and the batch mode show what it reports. At its end nothing runs that the program started.
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

    /// Whether an empty file beside an exit code other than 0 is a result: what a full disk leaves.
    enum class EmptyFile { Counts, Refused };

    /// The program enters the list of children, if any.
    explicit ConversionRun(ChildList* siblings = nullptr, QObject* parent = nullptr);
    ~ConversionRun() override;

    /// Puts an old project file aside and starts the program; false when it can not be started, with the end already
    /// reported. The old file comes back unless the run ends with Outcome::Created.
    bool start(const QString& program, const QStringList& arguments, const QString& projectFile);
    /// Stops the program with all that it started and removes a half-made project file.
    void stop();
    void setEmptyFile(EmptyFile rule) { emptyFile = rule; }
    bool isRunning() const { return running; }
    /// What the program printed since the last call, both channels merged, characters never cut in two.
    QString takeOutput();
    Outcome outcome() const { return result; }
    /// The program's exit code; -1 when it did not end by itself.
    int exitCode() const { return code; }
    /// What the system or the exit code had to say about the end; empty for a plain success.
    QString detail() const { return detailText; }
    /// What the user should know of a project file that is there although the program failed; empty otherwise.
    QString warning() const;
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
    void processFinished();
    void processFailed(QProcess::ProcessError error);
    void judge();
    void keepOld();
    void finish(Outcome outcome, const QString& detail);
    void addDetail(const QString& sentence);

    ChildProcess process;
    OutputDecoder decoder;
    ProjectPlace place;
    QString projectFileName;
    QString detailText;
    /// What became of the old file when the new one is empty.
    QString keptText;
    /// What somebody else left before the run.
    std::vector<long long> earlierStrays;
    Outcome result = Outcome::NotStarted;
    EmptyFile emptyFile = EmptyFile::Counts;
    int code = -1;
    bool running = false;
    bool stopping = false;
};

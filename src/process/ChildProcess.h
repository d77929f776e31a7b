// SPDX-License-Identifier: MIT
#pragma once

#include "process/ProcessGroup.h"

#include <QPointer>
#include <QProcess>
#include <QTimer>

class ChildList;

/// A child process that is stopped together with everything it started: it leads a session of its own (a job on
/// Windows), so it has no terminal. On Linux it does not outlive this program, even if that crashes.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    /// What becomes of the children that a process leaves running at its normal end.
    enum class Leftovers { Kill, KeepUntilStopped };

    /// Enters the list, if any, and leaves it when destroyed.
    explicit ChildProcess(ChildList* siblings = nullptr, QObject* parent = nullptr);
    /// Stops what still runs.
    ~ChildProcess() override;

    /// Starts a program with arguments that reach it as given. On Windows also a batch file, and a file whose kind is
    /// registered with an interpreter. Errors are told as by start().
    void launch(const QString& program, const QStringList& arguments);
    /// True while all children are being stopped because the program closes.
    bool isClosingDown() const;
    void setLeftovers(Leftovers policy) { leftovers = policy; }
    /// True while something runs that an earlier run left behind and that was kept.
    bool hasLeftovers() { return state() == QProcess::NotRunning && group.hasLeftovers(); }
    /// Asks the process and its children to end.
    void terminateGroup();
    /// Ends the process and its children at once.
    void killGroup();
    /// Asks, waits graceMs, then kills and waits at most killMs; leftovers go too. True when nothing runs any more.
    bool stop(int killMs, int graceMs = 500);

private:
    /// Makes the child the head of its group from its first moment on.
    void leadGroup();

    QPointer<ChildList> list;
    Leftovers leftovers = Leftovers::Kill;
    ProcessGroup group;
    QTimer reaper;
};

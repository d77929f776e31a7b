// SPDX-License-Identifier: MIT
#include "process/ChildProcess.h"

ChildProcess::ChildProcess(QObject* parent)
    : QProcess(parent)
{
#ifdef Q_OS_UNIX
    setChildProcessModifier(&ProcessGroup::becomeLeader);
#endif
    connect(this, &QProcess::started, this, [this] { group.adopt(processId()); });
    connect(this, &QProcess::finished, this, [this] { group.release(leftovers == Leftovers::Kill); });
}

ChildProcess::~ChildProcess()
{
    if (state() != QProcess::NotRunning) {
        killGroup();
        waitForFinished(1000);
    }
    group.endLeftovers();
}

void ChildProcess::terminateGroup()
{
    group.terminate();
    terminate();
}

void ChildProcess::killGroup()
{
    group.kill();
    kill();
}

bool ChildProcess::stop(int killMs, int graceMs)
{
    if (state() == QProcess::NotRunning) {
        group.endLeftovers();
        return true;
    }
    terminateGroup();
    if (!waitForFinished(graceMs)) {
        killGroup();
        waitForFinished(killMs);
    }
    group.endLeftovers();
    return state() == QProcess::NotRunning;
}

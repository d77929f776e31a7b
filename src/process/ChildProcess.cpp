// SPDX-License-Identifier: MIT
#include "process/ChildProcess.h"
#include "process/ChildList.h"
#include "process/StrayProcesses.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

// A script may wait for the end of something it has detached.
constexpr auto reapInterval = 100ms;

} // namespace

ChildProcess::ChildProcess(ChildList* siblings, QObject* parent)
    : QProcess(parent)
    , list(siblings)
{
    if (list) {
        list->enter(this);
    }
    leadGroup();
    reaper.setInterval(reapInterval);
    connect(&reaper, &QTimer::timeout, this, &StrayProcesses::reap);
    connect(this, &QProcess::started, this, [this] {
        group.adopt(processId());
        reaper.start();
    });
    connect(this, &QProcess::finished, this, [this] {
        reaper.stop();
        group.release(leftovers == Leftovers::Kill);
        StrayProcesses::reap();
    });
}

ChildProcess::~ChildProcess()
{
    if (list) {
        list->leave(this);
    }
    if (state() != QProcess::NotRunning) {
        killGroup();
        waitForFinished(1000);
    }
    group.endLeftovers();
}

bool ChildProcess::isClosingDown() const
{
    return list && list->isClosing();
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

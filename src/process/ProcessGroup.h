// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

/// The system's handle on a process and all that it starts. Knows nothing of Qt, so that each system's part stays
/// small.
class ProcessGroup
{
public:
    ProcessGroup();
    ~ProcessGroup();
    ProcessGroup(const ProcessGroup&) = delete;
    ProcessGroup& operator=(const ProcessGroup&) = delete;

    /// Runs in the child between fork and exec: makes it the leader of a session and its group. Does
    /// nothing on Windows.
    static void becomeLeader();

    /// Takes hold of a process that has just been started.
    void adopt(long long processId);
    void terminate();
    void kill();
    /// Lets go of a finished leader: kills what it left running, or remembers it.
    void release(bool killNow);
    /// True while something that was remembered runs.
    bool hasLeftovers();
    /// Asks what was remembered to end, and kills what has not after half a second.
    void endLeftovers();

private:
    struct Handle;
    std::unique_ptr<Handle> handle;
};

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

    /// Unix: runs in the child between fork and exec, and makes it the leader of a session and its group.
    static void becomeLeader();
    /// Windows: what to hand to CreateProcess() in place of this start-up information, with these flags, so that the
    /// child is in the job before it runs.
    void* startInside(const void* startup, unsigned long& flags);

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

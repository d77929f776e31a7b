// SPDX-License-Identifier: MIT
#include "process/ProcessGroup.h"

#include <csignal>
#include <sys/types.h>
#include <unistd.h>
#include <vector>

#ifdef __linux__
#include <sys/prctl.h>
#endif

struct ProcessGroup::Handle
{
    pid_t leader = 0;
    std::vector<pid_t> leftovers;

    void signal(int number) const
    {
        if (leader > 0) {
            ::kill(-leader, number);
        }
    }
};

ProcessGroup::ProcessGroup()
    : handle(std::make_unique<Handle>())
{
}

ProcessGroup::~ProcessGroup() = default;

void ProcessGroup::becomeLeader()
{
    ::setpgid(0, 0);
#ifdef __linux__
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}

void ProcessGroup::adopt(long long processId)
{
    handle->leader = static_cast<pid_t>(processId);
}

void ProcessGroup::terminate()
{
    handle->signal(SIGTERM);
}

void ProcessGroup::kill()
{
    handle->signal(SIGKILL);
}

void ProcessGroup::release(bool killNow)
{
    if (killNow) {
        kill();
    } else if (handle->leader > 0 && ::kill(-handle->leader, 0) == 0) {
        handle->leftovers.push_back(handle->leader);
    }
    handle->leader = 0;
}

void ProcessGroup::killLeftovers()
{
    for (const pid_t group : handle->leftovers) {
        // While the group lives, no new process gets its leader's number: one that has it leads a group of others.
        if (::kill(group, 0) != 0) {
            ::kill(-group, SIGKILL);
        }
    }
    handle->leftovers.clear();
}

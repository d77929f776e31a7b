// SPDX-License-Identifier: MIT
#include "process/ProcessGroup.h"

#include <csignal>
#include <sys/types.h>
#include <unistd.h>

#ifdef __linux__
#include <sys/prctl.h>
#endif

struct ProcessGroup::Handle
{
    pid_t leader = 0;

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

void ProcessGroup::release()
{
    kill();
    handle->leader = 0;
}

// SPDX-License-Identifier: MIT
#include "process/ProcessGroup.h"
#include "process/StrayProcesses.h"

#include <chrono>
#include <csignal>
#include <memory>
#include <sys/types.h>
#include <thread>
#include <unistd.h>
#include <vector>

#ifdef __linux__
#include <sys/prctl.h>
#endif

using namespace std::chrono_literals;

namespace {

constexpr auto leftoverPatience = 500ms;
constexpr auto pollInterval = 10ms;

} // namespace

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

    /// Forgets the groups that have ended.
    void prune();

    void signalLeftovers(int number) const
    {
        for (const pid_t group : leftovers) {
            ::kill(-group, number);
        }
    }
};

// While a group lives, no new process gets its leader's number: where one has it, the group is another program's.
void ProcessGroup::Handle::prune()
{
    if (!leftovers.empty()) {
        StrayProcesses::reap();
        std::erase_if(leftovers, [](pid_t group) { return ::kill(group, 0) == 0 || ::kill(-group, 0) != 0; });
    }
}

ProcessGroup::ProcessGroup()
    : handle(std::make_unique<Handle>())
{
}

ProcessGroup::~ProcessGroup() = default;

void ProcessGroup::becomeLeader()
{
    // A session of its own has no terminal: a group in the background of one would be stopped when it writes, or when
    // it asks for a password.
    ::setsid();
#ifdef __linux__
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}

void ProcessGroup::adopt(long long processId)
{
    handle->leader = static_cast<pid_t>(processId);
    StrayProcesses::expect(processId);
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
    StrayProcesses::forget(handle->leader);
    if (killNow) {
        kill();
    } else if (handle->leader > 0 && ::kill(-handle->leader, 0) == 0) {
        handle->prune();
        handle->leftovers.push_back(handle->leader);
    }
    handle->leader = 0;
}

bool ProcessGroup::hasLeftovers()
{
    handle->prune();
    return !handle->leftovers.empty();
}

void ProcessGroup::endLeftovers()
{
    const auto deadline = std::chrono::steady_clock::now() + leftoverPatience;
    if (hasLeftovers()) {
        handle->signalLeftovers(SIGTERM);
    }
    while (hasLeftovers()) {
        if (std::chrono::steady_clock::now() >= deadline) {
            handle->signalLeftovers(SIGKILL);
            handle->leftovers.clear();
            return;
        }
        std::this_thread::sleep_for(pollInterval);
    }
}

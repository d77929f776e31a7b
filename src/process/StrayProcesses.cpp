// SPDX-License-Identifier: MIT
#include "process/StrayProcesses.h"

#ifdef __linux__

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fstream>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr auto pollInterval = 10ms;
constexpr auto killPatience = 2s;

/// Our children outside our own group: those started as leaders of a group, and strays.
std::vector<pid_t> childrenOfOtherGroups()
{
    const std::string self = std::to_string(::getpid());
    std::ifstream list("/proc/self/task/" + self + "/children");
    std::vector<pid_t> children;
    for (pid_t child = 0; list >> child;) {
        if (::getpgid(child) != ::getpgrp()) {
            children.push_back(child);
        }
    }
    return children;
}

// True when it is gone now.
bool collect(pid_t child)
{
    const pid_t result = ::waitpid(child, nullptr, WNOHANG);
    return result == child || (result < 0 && errno == ECHILD);
}

bool endAll(int signal, std::chrono::milliseconds patience)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    std::vector<pid_t> told;
    while (true) {
        bool anyLeft = false;
        // Asked anew each time: what a stray leaves behind comes to us in turn.
        for (const pid_t child : childrenOfOtherGroups()) {
            if (std::ranges::find(told, child) == told.end()) {
                ::kill(child, signal);
                told.push_back(child);
            }
            anyLeft = !collect(child) || anyLeft;
        }
        if (!anyLeft || std::chrono::steady_clock::now() >= deadline) {
            return !anyLeft;
        }
        std::this_thread::sleep_for(pollInterval);
    }
}

} // namespace

void StrayProcesses::adopt()
{
    ::prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);
}

void StrayProcesses::reap()
{
    for (const pid_t child : childrenOfOtherGroups()) {
        // A leader of a group in our session may be a child that somebody here still waits for.
        if (::getpgid(child) != child || ::getsid(child) != ::getsid(0)) {
            collect(child);
        }
    }
}

void StrayProcesses::stop(int graceMs)
{
    if (!endAll(SIGTERM, std::chrono::milliseconds(graceMs))) {
        endAll(SIGKILL, killPatience);
    }
}

#else

void StrayProcesses::adopt() {}
void StrayProcesses::reap() {}
void StrayProcesses::stop(int) {}

#endif

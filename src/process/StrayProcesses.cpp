// SPDX-License-Identifier: MIT
#include "process/StrayProcesses.h"

#ifdef __linux__

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <set>
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

struct Family
{
    std::set<pid_t> inherited;
    std::set<pid_t> expected;
};

Family& family()
{
    static Family known;
    return known;
}

std::vector<pid_t> children()
{
    std::ifstream list("/proc/self/task/" + std::to_string(::getpid()) + "/children");
    std::vector<pid_t> all;
    for (pid_t child = 0; list >> child;) {
        all.push_back(child);
    }
    return all;
}

// Children in our own group are helpers of this program, such as the help viewer.
std::vector<pid_t> strays()
{
    std::vector<pid_t> found = children();
    const Family& known = family();
    std::erase_if(found, [&](pid_t child) {
        return ::getpgid(child) == ::getpgrp() || known.inherited.contains(child) || known.expected.contains(child);
    });
    return found;
}

void collect(pid_t child)
{
    ::waitpid(child, nullptr, WNOHANG);
}

std::vector<pid_t> straysBut(const std::vector<long long>& spared)
{
    std::vector<pid_t> found = strays();
    std::erase_if(found, [&](pid_t child) { return std::ranges::find(spared, child) != spared.end(); });
    return found;
}

// Asked anew each time: what a stray leaves behind comes to us in turn, and the system's list may miss one while others
// end, so that it has to be empty twice.
bool endAll(int signal, std::chrono::milliseconds patience, const std::vector<long long>& spared)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    std::vector<pid_t> told;
    for (int emptyLists = 0; emptyLists < 2;) {
        const std::vector<pid_t> left = straysBut(spared);
        emptyLists = left.empty() ? emptyLists + 1 : 0;
        for (const pid_t child : left) {
            if (std::ranges::find(told, child) == told.end()) {
                ::kill(child, signal);
                told.push_back(child);
            }
            collect(child);
        }
        if (!left.empty() && std::chrono::steady_clock::now() >= deadline) {
            return false;
        }
        if (!told.empty()) {
            std::this_thread::sleep_for(pollInterval);
        }
    }
    return true;
}

} // namespace

void StrayProcesses::adopt()
{
    const std::vector<pid_t> before = children();
    family().inherited = {before.begin(), before.end()};
    ::prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);
}

void StrayProcesses::expect(long long child)
{
    // Its number may have been that of one we came with.
    family().inherited.erase(pid_t(child));
    family().expected.insert(pid_t(child));
}

void StrayProcesses::forget(long long child)
{
    family().expected.erase(pid_t(child));
}

void StrayProcesses::reap()
{
    for (const pid_t child : strays()) {
        collect(child);
    }
}

bool StrayProcesses::any()
{
    reap();
    return !strays().empty();
}

std::vector<long long> StrayProcesses::present()
{
    // Also one that has not yet left our group.
    const std::vector<pid_t> found = children();
    return {found.begin(), found.end()};
}

void StrayProcesses::stop(int graceMs, const std::vector<long long>& spared)
{
    if (!endAll(SIGTERM, std::chrono::milliseconds(graceMs), spared)) {
        endAll(SIGKILL, killPatience, spared);
    }
}

#else

void StrayProcesses::adopt() {}
void StrayProcesses::expect(long long) {}
void StrayProcesses::forget(long long) {}
void StrayProcesses::reap() {}
bool StrayProcesses::any()
{
    return false;
}
std::vector<long long> StrayProcesses::present()
{
    return {};
}
void StrayProcesses::stop(int, const std::vector<long long>&) {}

#endif

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

using Words = std::vector<std::string>;

/// What the two systems do each in its way. Texts are UTF-8.
namespace System {

/// Where a started child lives. Windows has no sessions: there it has no console.
enum class Place { Group, OwnGroup, OwnSession, Daemon };

/// The own file's path without a suffix, and the arguments.
Words commandLine(int argc, char** argv);
std::string variable(const std::string& name);
long long processId();
/// Runs the verbs in a child, which goes on beside this one: by "run" where a process can be forked.
void start(Place place, const Words& self, const std::string& verbs, const std::function<void()>& run);
void waitForAll();
/// This program becomes another one, with its arguments, channels and status.
[[noreturn]] void become(const Words& command);
/// Nothing but force ends this process from now on.
void ignoreRequests();
/// As the system ends a program for a bad access, or whoever may end any program.
void crash();
void die();
void closeOutput();

} // namespace System

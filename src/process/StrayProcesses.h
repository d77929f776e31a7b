// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

/// Processes that a child left behind, in whatever group or session. On Linux they come to this program when their
/// parent ends, once it has asked for them; elsewhere they are out of reach.
namespace StrayProcesses {

/// Asks the system for them. Once, at the start of the program: children that it has by then are not its own doing and
/// are left alone.
void adopt();

/// A child in a group of its own that somebody here waits for, from its start until forget().
void expect(long long child);
void forget(long long child);

/// Lets go of those that have ended by themselves. What watches for their end would wait for ever otherwise.
void reap();

/// True while one runs.
bool any();

/// The process ids of all children that there are, to be spared later.
std::vector<long long> present();

/// Asks all but the spared ones to end, waits graceMs at most, then kills them and what they leave in turn.
void stop(int graceMs, const std::vector<long long>& spared = {});

} // namespace StrayProcesses

// SPDX-License-Identifier: MIT
#pragma once

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

/// Asks all to end, waits graceMs at most, then kills them and what they leave in turn.
void stop(int graceMs);

} // namespace StrayProcesses

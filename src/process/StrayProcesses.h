// SPDX-License-Identifier: MIT
#pragma once

/// Processes that a child left behind in a session or group of their own. On Linux they come to this program when their
/// parent ends, once it has asked for them; elsewhere they are out of reach.
namespace StrayProcesses {

/// Asks the system for them. Once, at the start of the program.
void adopt();

/// Lets go of those that have ended by themselves.
void reap();

/// Asks all to end, waits graceMs at most, then kills them and what they leave in turn. Only once no child runs that
/// this program waits for itself.
void stop(int graceMs);

} // namespace StrayProcesses

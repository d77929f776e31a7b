// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class LauncherOutput;
class QProcess;

/// What there is to say about a tool's run that went wrong.
namespace RunReport {

/// The failure in one line, as it ends: not started, crashed, or the exit code.
QString failure(const QProcess& process);

/// Which program it was, the system's reason and what to do; empty when nothing failed.
QString reason(const QProcess& process);

/// The command, how it ended, and the end of what it said on both channels, as plain text.
QString details(const QProcess& process, const LauncherOutput& output);

} // namespace RunReport

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What an analysis is started with.
struct RunSettings
{
    /// 0: as many as there are cores.
    int jobs = 0;
    /// What stands before every job; divided at blanks.
    QString launcher;
    /// Seconds for one source; 0: the usual limit.
    int timeLimit = 0;
};

enum class NinjaEnd { Done, SomeFailed, Stopped };

/// Runs the build file of a work folder to its end; what Ninja prints goes where our own output goes. A signal that
/// ends us ends Ninja and its jobs first. Throws a Failure when Ninja can not be started.
NinjaEnd runNinja(const QString& workFolder, const RunSettings& settings);

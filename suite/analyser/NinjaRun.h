// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// What an analysis is started with.
struct RunSettings
{
    /// 0: as many as there are cores.
    int jobs = 0;
    /// What stands before every job; divided at blanks.
    QString launcher;
    /// Seconds for one source; 0: the usual limit.
    int timeLimit = 0;

    int usedJobs() const;
};

enum class NinjaEnd { Done, SomeFailed, Stopped };

namespace NinjaRun {

/// The folders of the units whose statements in build.ninja have something to do. Throws a Failure when Ninja can not
/// be started, or can not tell.
QStringList staleFolders(const QString& workFolder);

/// Runs run.ninja to its end and hands on the description of each job that has ended; what jobs print goes where our
/// own errors go. A signal that ends us ends Ninja and its jobs first. Throws a Failure when Ninja can not be started.
NinjaEnd run(const QString& workFolder, const RunSettings& settings, const std::function<void(const QString&)>& ended);

} // namespace NinjaRun

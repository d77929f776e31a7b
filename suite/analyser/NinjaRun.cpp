// SPDX-License-Identifier: MIT
#include "NinjaRun.h"
#include "AnalyserRun.h"
#include "BuildFile.h"
#include "Failure.h"

#include <QProcess>
#include <QThread>

#include <csignal>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace {

volatile std::sig_atomic_t stopSignal = 0;
volatile std::sig_atomic_t ninjaProcess = 0;

#ifdef Q_OS_UNIX

// Ninja ends its jobs, each with all that it started.
void handOn(int signal)
{
    stopSignal = signal;
    if (ninjaProcess > 0) {
        ::kill(ninjaProcess, SIGTERM);
    }
}

void catchSignals()
{
    struct sigaction action = {};
    action.sa_handler = handOn;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        ::sigaction(signal, &action, nullptr);
    }
}

#else

void catchSignals() {}

#endif

QProcessEnvironment environmentOf(const RunSettings& settings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"NINJA_STATUS"_s, u"[%f/%t] "_s);
    environment.insert(QLatin1StringView(launcherVariable), settings.launcher);
    if (settings.timeLimit > 0) {
        environment.insert(QLatin1StringView(Analyser::timeLimitVariable), QString::number(settings.timeLimit));
    }
    return environment;
}

} // namespace

NinjaEnd runNinja(const QString& workFolder, const RunSettings& settings)
{
    QProcess ninja;
    ninja.setWorkingDirectory(workFolder);
    ninja.setProcessChannelMode(QProcess::ForwardedChannels);
    ninja.setInputChannelMode(QProcess::ForwardedInputChannel);
    ninja.setProcessEnvironment(environmentOf(settings));
#ifdef Q_OS_LINUX
    ninja.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    catchSignals();
    const int jobs = settings.jobs > 0 ? settings.jobs : QThread::idealThreadCount();
    ninja.start(u"ninja"_s, {u"-k"_s, u"0"_s, u"-j"_s, QString::number(jobs)});
    if (!ninja.waitForStarted(-1)) {
        throw Failure{u"ninja can not be started: %1. Install the package ninja-build."_s.arg(ninja.errorString())};
    }
    ninjaProcess = int(ninja.processId());
    if (stopSignal != 0) {
        ninja.terminate();
    }
    ninja.waitForFinished(-1);
    ninjaProcess = 0;
    if (stopSignal != 0) {
        return NinjaEnd::Stopped;
    }
    return ninja.exitStatus() == QProcess::NormalExit && ninja.exitCode() == 0 ? NinjaEnd::Done : NinjaEnd::SomeFailed;
}

// SPDX-License-Identifier: MIT
#include "NinjaRun.h"
#include "AnalyserRun.h"
#include "Failure.h"
#include "NinjaSyntax.h"
#include "RunFile.h"
#include "ToolFolders.h"
#include "ToolText.h"

#include <QByteArrayList>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <csignal>
#include <cstdio>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif
#ifdef Q_OS_WIN
#include <qt_windows.h>
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

// Ninja hears of it as well, in the same console, and ends its jobs.
BOOL WINAPI handOn(DWORD)
{
    stopSignal = SIGINT;
    return TRUE;
}

void catchSignals()
{
    ::SetConsoleCtrlHandler(handOn, TRUE);
}

// Held until this program ends, however it does: with it end Ninja and all that it started.
void endChildrenWithUs()
{
    const HANDLE job = ::CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    ::SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    ::AssignProcessToJobObject(job, ::GetCurrentProcess());
}

#endif

// Begins Ninja's line about a job that has ended; no job prints it.
constexpr QLatin1StringView endedMark("@ended@");

void start(QProcess& ninja, const QStringList& arguments)
{
    ninja.start(u"ninja"_s, arguments);
    if (!ninja.waitForStarted(-1)) {
        throw Failure{
            u"ninja can not be started: %1. %2"_s.arg(ninja.errorString(), ToolFolders::howToGet(u"ninja-build"_s))};
    }
}

QProcessEnvironment environmentOf(const RunSettings& settings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"NINJA_STATUS"_s, endedMark);
    environment.insert(QLatin1StringView(NinjaSyntax::launcherVariable), settings.launcher);
    if (settings.timeLimit > 0) {
        environment.insert(QLatin1StringView(Analyser::timeLimitVariable), QString::number(settings.timeLimit));
    }
    return environment;
}

/// Takes Ninja's output apart: jobs that have ended, what jobs printed, and what Ninja says about those that failed.
class OutputReader
{
public:
    explicit OutputReader(const std::function<void(const QString&)>& handler)
        : ended(handler)
    {
    }

    void take(QProcess& ninja)
    {
        while (ninja.canReadLine()) {
            takeLine(ninja.readLine());
        }
    }

    void takeLine(const QByteArray& line)
    {
        if (line.startsWith(endedMark.latin1())) {
            ended(QString::fromLatin1(line.sliced(endedMark.size())).trimmed());
        } else if (line.startsWith("FAILED: ")) {
            isCommand = true;
        } else if (isCommand) {
            isCommand = false;
        } else if (!line.startsWith("ninja: ")) {
            std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
        }
    }

private:
    const std::function<void(const QString&)>& ended;
    /// The next line is the command that failed, which tells a user nothing.
    bool isCommand = false;
};

} // namespace

int RunSettings::usedJobs() const
{
    return jobs > 0 ? jobs : QThread::idealThreadCount();
}

QStringList NinjaRun::staleFolders(const QString& workFolder)
{
    QProcess ninja;
    ninja.setWorkingDirectory(workFolder);
    // Times of files alone count, whoever has run the file before.
    QFile::remove(workFolder + u"/.ninja_log"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"NINJA_STATUS"_s, endedMark);
    ninja.setProcessEnvironment(environment);
    start(ninja, {u"-n"_s, u"-k"_s, u"0"_s});
    ninja.waitForFinished(-1);
    const QByteArrayList lines = ninja.readAllStandardOutput().split('\n');
    if (ninja.exitStatus() != QProcess::NormalExit || ninja.exitCode() != 0) {
        throw Failure{u"ninja can not tell what is to be analysed: %1"_s.arg(
            QString::fromLocal8Bit(ninja.readAllStandardError() + lines.last()).trimmed())};
    }
    QStringList folders;
    for (const QByteArray& line : lines) {
        if (line.startsWith(endedMark.latin1())) {
            folders += ToolText::fromFile(line.sliced(endedMark.size())).trimmed();
        }
    }
    return folders;
}

NinjaEnd NinjaRun::run(const QString& workFolder, const RunSettings& settings,
                       const std::function<void(const QString&)>& ended)
{
    QProcess ninja;
    ninja.setWorkingDirectory(workFolder);
    ninja.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    ninja.setInputChannelMode(QProcess::ForwardedInputChannel);
    ninja.setProcessEnvironment(environmentOf(settings));
#ifdef Q_OS_LINUX
    ninja.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
#elif defined(Q_OS_WIN)
    endChildrenWithUs();
#endif
    catchSignals();
    start(ninja,
          {u"-f"_s, QLatin1StringView(runFileName), u"-k"_s, u"0"_s, u"-j"_s, QString::number(settings.usedJobs())});
    ninjaProcess = int(ninja.processId());
    if (stopSignal != 0) {
        ninja.terminate();
    }
    OutputReader reader(ended);
    while (ninja.waitForReadyRead(-1)) {
        reader.take(ninja);
    }
    ninja.waitForFinished(-1);
    reader.take(ninja);
    ninjaProcess = 0;
    if (stopSignal != 0) {
        return NinjaEnd::Stopped;
    }
    return ninja.exitStatus() == QProcess::NormalExit && ninja.exitCode() == 0 ? NinjaEnd::Done : NinjaEnd::SomeFailed;
}

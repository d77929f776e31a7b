// SPDX-License-Identifier: MIT
#include "BuildRun.h"
#include "../Failure.h"
#include "process/ChildProcess.h"
#include "process/StopSignals.h"
#include "process/StrayProcesses.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QStandardPaths>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// Less than whoever stops us waits before using force.
constexpr int graceMs = 250;
constexpr int killMs = 2000;
constexpr qsizetype tailSize = 2000;

QString endingOf(const QProcess& process, const QString& program)
{
    if (process.exitStatus() == QProcess::CrashExit) {
        return u"%1 was ended by a signal"_s.arg(program);
    }
    return process.exitCode() == 0 ? QString() : u"%1 ended with status %2"_s.arg(program).arg(process.exitCode());
}

} // namespace

void BuildRun::require(const QString& program, const QString& package)
{
    if (QStandardPaths::findExecutable(program).isEmpty()) {
#ifdef Q_OS_WIN
        const QString advice = u"Install %1 and put its folder into PATH."_s;
#else
        const QString advice = u"Install the package \"%1\"."_s;
#endif
        throw Failure{u"%1 is needed for this and was not found. "_s.arg(program) + advice.arg(package)};
    }
}

void BuildRun::prepare(QProcess& process)
{
    process.setProcessChannelMode(outputFile.isEmpty() ? QProcess::MergedChannels : QProcess::SeparateChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    if (!outputFile.isEmpty()) {
        process.setStandardOutputFile(outputFile);
    }
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(environment);
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                     [&] { pass(process.readAllStandardOutput()); });
    QObject::connect(&process, &QProcess::readyReadStandardError, &process,
                     [&] { pass(process.readAllStandardError()); });
}

bool BuildRun::run()
{
    StrayProcesses::adopt();
    ChildProcess process;
    StopSignals signalWatch;
    QEventLoop loop;
    bool isStopped = false;
    prepare(process);
    QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    // What crashes or is read badly ends all the same; what never started does not.
    QObject::connect(&process, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            loop.quit();
        }
    });
    QObject::connect(&signalWatch, &StopSignals::received, &loop, [&] {
        isStopped = true;
        loop.quit();
    });
    process.start(program, arguments);
    if (process.state() != QProcess::NotRunning) {
        loop.exec();
    }
    if (process.error() == QProcess::FailedToStart) {
        throw Failure{u"%1: can not be started (%2)."_s.arg(program, process.errorString())};
    }
    if (isStopped) {
        process.stop(killMs, graceMs);
        StrayProcesses::stop(graceMs);
        return false;
    }
    pass(outputFile.isEmpty() ? process.readAllStandardOutput() : process.readAllStandardError());
    ending = endingOf(process, program);
    return true;
}

QString BuildRun::problem() const
{
    const QString last = QString::fromLocal8Bit(tail).trimmed();
    return ending.isEmpty() || last.isEmpty() ? ending : ending + u". Its last output:\n"_s + last;
}

void BuildRun::pass(const QByteArray& text)
{
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout);
    std::fflush(stdout);
    tail += text;
    if (tail.size() > tailSize) {
        // Whole lines, as far as there are any.
        const qsizetype cut = tail.indexOf('\n', tail.size() - tailSize) + 1;
        tail.remove(0, cut > 0 ? cut : tail.size() - tailSize);
    }
}

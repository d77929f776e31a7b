// SPDX-License-Identifier: MIT
#include "AnalyserRun.h"
#include "Failure.h"
#include "ToolFolders.h"
#include "ToolText.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QVersionNumber>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultSeconds = 600;

/// The first line of what a program said; a user looks for the reason there.
QString firstLine(const QByteArray& output)
{
    return ToolText::fromChannel(output).trimmed().section(u'\n', 0, 0).trimmed();
}

void judge(QProcess& analyser, AnalyserRun& run)
{
    const QByteArray complaints = analyser.readAllStandardOutput();
    if (analyser.exitStatus() != QProcess::NormalExit) {
        run.end = AnalyserRun::End::Crashed;
        // Windows has no signals, but a status for each kind of crash.
        const int code = analyser.exitCode();
        run.reason = code < 0 ? u"the analyser crashed (0x%1)"_s.arg(uint(code), 8, 16, QLatin1Char('0'))
                              : u"the analyser ended with signal %1"_s.arg(code);
    } else if (analyser.exitCode() != 0) {
        run.end = AnalyserRun::End::Failed;
        run.reason =
            u"the analyser ended with status %1: %2"_s.arg(QString::number(analyser.exitCode()), firstLine(complaints));
    } else if (!complaints.trimmed().isEmpty()) {
        // A quiet run prints only what kept it from its work, such as an addon that can not be started.
        run.end = AnalyserRun::End::Failed;
        run.reason = firstLine(complaints);
    }
}

QList<Finding> findingsIn(const QByteArray& output)
{
    QList<Finding> findings;
    // Line by line, since a text may be that of a source in another encoding.
    for (const QByteArray& line : output.split('\n')) {
        Finding finding;
        if (finding.fromLine(ToolText::fromChannel(line))) {
            finding.file = QDir::fromNativeSeparators(finding.file);
            findings += finding;
        }
    }
    return findings;
}

// On Windows the analyser has a platform of its own by default, and complains of it.
QStringList withPlatform(const QStringList& arguments)
{
#ifdef Q_OS_WIN
    if (arguments.filter(u"--platform="_s).isEmpty()) {
        return QStringList{u"--platform=native"_s} + arguments;
    }
#endif
    return arguments;
}

} // namespace

AnalyserRun AnalyserRun::start(const QStringList& arguments, const QString& folder, int seconds)
{
    AnalyserRun run;
    QProcess analyser;
    analyser.setWorkingDirectory(folder);
#ifdef Q_OS_LINUX
    // Whatever ends us must end it.
    analyser.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
#endif
    analyser.start(QLatin1StringView(Analyser::program), withPlatform(arguments));
    if (!analyser.waitForStarted(-1)) {
        run.end = End::Failed;
        run.reason =
            u"cppcheck can not be started: %1. %2"_s.arg(analyser.errorString(), ToolFolders::howToGet(u"cppcheck"_s));
        return run;
    }
    if (!analyser.waitForFinished(seconds * 1000)) {
        analyser.kill();
        analyser.waitForFinished(-1);
        run.end = End::TimedOut;
        run.reason = u"the analyser was stopped after %1 seconds"_s.arg(seconds);
    } else {
        judge(analyser, run);
    }
    run.findings = findingsIn(analyser.readAllStandardError());
    return run;
}

QString Analyser::version()
{
    QProcess analyser;
    analyser.start(QLatin1StringView(program), {u"--version"_s});
    if (!analyser.waitForFinished(60000) || analyser.exitCode() != 0) {
        throw Failure{
            u"cppcheck can not be started: %1. %2"_s.arg(analyser.errorString(), ToolFolders::howToGet(u"cppcheck"_s))};
    }
    const QString said = firstLine(analyser.readAllStandardOutput());
    static const QRegularExpression number(u"[0-9]+(\\.[0-9]+)+"_s);
    const QVersionNumber oldest(2, 10);
    if (QVersionNumber::fromString(number.match(said).captured()) < oldest) {
        throw Failure{u"\"%1\" is too old: version %2 of cppcheck is needed. Install a newer one."_s.arg(
            said, oldest.toString())};
    }
    return said;
}

int Analyser::timeLimit()
{
    const int seconds = qEnvironmentVariableIntValue(timeLimitVariable);
    return seconds > 0 ? seconds : defaultSeconds;
}

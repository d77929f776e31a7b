// SPDX-License-Identifier: MIT
#include "Installation.h"
#include "process/ConversionRun.h"
#include "process/StrayProcesses.h"
#include "TestMain.h"

#include <QDirIterator>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

using Outcome = ConversionRun::Outcome;

/// What a row does besides running its script.
enum class Act { Wait, Stop, Destroy };

const QDateTime oldTime = QDateTime::fromSecsSinceEpoch(1'000'000'000);

/// Children write the process ids of all that they start here, one a line.
QString pidFile(const Installation& suite)
{
    return suite.path(u"pids"_s);
}

QStringList hiddenFiles(const QString& folder)
{
    return QDir(folder).entryList({u".kovra*"_s, u".old*"_s}, QDir::Files | QDir::Hidden | QDir::System);
}

// What the system says of a program that is not there.
QString missingReason()
{
#ifdef Q_OS_WIN
    return {};
#else
    return u"No such file"_s;
#endif
}

} // namespace

Q_DECLARE_METATYPE(Act)

/// Whatever a conversion program does: at the end nothing of it runs, nothing hidden is left, and an old project is
/// there again unless a new one has taken its place.
class ConverterFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { StrayProcesses::adopt(); }

    void keepsTheOldProject_data()
    {
        using enum ConversionRun::Outcome;
        const TestRows<QByteArray, Outcome, Act, QString> row("script", "outcome", "act", "detail");
        row("missing", "#missing", NotStarted, Act::Wait, missingReason());
        row("no program format", "#no format", NotStarted, Act::Wait, {});
        row("writes nothing", "", NotCreated, Act::Wait, u"kept"_s);
        row("exit code, nothing written", "print-error why; exit 3", NotCreated, Act::Wait, u"exit code 3"_s);
        row("exit code 255", "exit 255", NotCreated, Act::Wait, u"exit code 255"_s);
        row("crash", "write $1 half; crash", Failed, Act::Wait, u"crashed"_s);
        row("killed", "write $1 half; die", Failed, Act::Wait, u"crashed"_s);
        row("folder as result", "folder $1/sub; write $1/sub/x x", NotCreated, Act::Wait, u"a folder"_s);
        row("deletes its folder", "remove $1/..", NotCreated, Act::Wait, u"kept"_s);
        row("deletes hidden files", "remove $1/../.k*", NotCreated, Act::Wait, u"kept"_s);
        row("closes its output", "close-output; exit 4", NotCreated, Act::Wait, u"exit code 4"_s);
        row("closes its output and hangs", "print r; close-output; hang", Stopped, Act::Stop, {});
        row("reads its input", "copy-input; exit 5", NotCreated, Act::Wait, u"exit code 5"_s);
        row("floods", "flood 20000000 y", NotCreated, Act::Wait, {});
        row("one long line", "long-line 5000000", NotCreated, Act::Wait, {});
        row("bad text", "flood 100000 \\x\\0\\x", NotCreated, Act::Wait, {});
        row("late file", "start { write $2.up; pause 1000; write $1 LATE }; await $2.up", NotCreated, Act::Wait, {});
        row("late file of a daemon", "start-session { mark $2; write $2.up; pause 1000; write $1 LATE }; await $2.up",
            NotCreated, Act::Wait, {});
        row("hangs", "write $1 half; print r; hang", Stopped, Act::Stop, u"stopped"_s);
        row("ignores the request to end", "ignore-requests; write $1 half; print r; hang", Stopped, Act::Stop,
            u"stopped"_s);
        row("grandchild in the group", "start { ignore-requests; mark $2; print r; hang }; wait", Stopped, Act::Stop,
            {});
        row("grandchild in another group", "start-group { ignore-requests; mark $2; print r; hang }; wait", Stopped,
            Act::Stop, {});
        row("grandchild in another session", "start-session { mark $2; print r; pause 1000; write $1 STALE }; wait",
            Stopped, Act::Stop, {});
        row("deaf daemon", "start-daemon { ignore-requests; mark $2; print r; hang }; hang", Stopped, Act::Stop, {});
        row("daemons that start each other",
            "start-daemon { start-daemon { ignore-requests; mark $2; print r; hang }; ignore-requests; mark $2; hang "
            "}; "
            "hang",
            Stopped, Act::Stop, {});
        row("abandoned", "start-session { mark $2; write $2.up; hang }; await $2.up; write $1 half; print r; hang",
            Stopped, Act::Destroy, {});
#ifdef Q_OS_UNIX
        row("not executable", "#not executable", NotStarted, Act::Wait, u"denied"_s);
        row("full disk, killed", "#!ulimit -c 0; ulimit -f 0; exec sh -c 'echo x > \"$0\"; echo y >> \"$0\"' \"$1\"",
            Failed, Act::Wait, u"crashed"_s);
        row("link as result", "#!echo x > \"$2.x\"; ln -s \"$2.x\" \"$1\"", NotCreated, Act::Wait, u"a link"_s);
        row("link to nowhere", "#!ln -s /nowhere \"$1\"", NotCreated, Act::Wait, u"a link"_s);
        row("pipe as result", "#!mkfifo \"$1\"", NotCreated, Act::Wait, u"regular"_s);
        row("ends politely",
            "#!trap 'echo done > \"$1\"; exit 0' TERM; echo half > \"$1\"; echo r; while :; do sleep 0.1; done",
            Stopped, Act::Stop, u"stopped"_s);
        row("daemon without environment",
            "#!(setsid env -i M=\"$2\" sh -c 'trap \"\" TERM; echo $$ >> \"$M\"; echo r; sleep 1000; :' &); sleep 1000",
            Stopped, Act::Stop, {});
#endif
    }

    void keepsTheOldProject()
    {
        const auto [outcome, act, detail] = fetched<Outcome, Act, QString>("outcome", "act", "detail");
        const Installation suite;
        const QString project = suite.write(u"work/p.prj"_s, QByteArray("old\0project\n", 12), oldTime);
        const QByteArray before = suite.read(project);
        Outcome ended{};
        QString said;
        {
            ConversionRun run;
            QSignalSpy ends(&run, &ConversionRun::ended);
            QSignalSpy output(&run, &ConversionRun::outputReady);
            const bool started = run.start(program(suite), {project, pidFile(suite)}, project);
            QCOMPARE(started, outcome != Outcome::NotStarted);
            if (act != Act::Wait) {
                QTRY_VERIFY(!output.isEmpty());
                QVERIFY(suite.read(project) != before);
            }
            if (act == Act::Stop) {
                run.stop();
                // At once: the page says so now.
                QCOMPARE(suite.running(pidFile(suite)), QByteArrayList());
            }
            if (act != Act::Destroy) {
                QTRY_COMPARE_WITH_TIMEOUT(ends.size(), 1, 20000);
                ended = run.outcome();
                QCOMPARE(ended, outcome);
                said = run.detail();
            }
        }
        QVERIFY2(said.contains(detail), qPrintable(said));
        QCOMPARE(suite.running(pidFile(suite)), QByteArrayList());
        QVERIFY(!StrayProcesses::any());
        QCOMPARE(suite.read(project), before);
        QCOMPARE(QFileInfo(project).lastModified(), oldTime);
        QCOMPARE(hiddenFiles(suite.path(u"work"_s)), QStringList());
        QCOMPARE(QDir(QDir::tempPath()).entryList({u"KOVRA-*"_s}), QStringList());
    }

    void takesTheNewProject_data()
    {
        const TestRows<QByteArray, int> row("script", "code");
        row("plain", "write $1 new", 0);
        row("exit code 7", "write $1 new; exit 7", 7);
        row("renamed into place", "write $1.tmp new; rename $1.tmp $1", 0);
        row("leaves a daemon", "write $1 new; start-daemon { mark $2; write $2.up; hang }; await $2.up", 0);
        row("leaves a child with its output", "write $1 new; start { mark $2; write $2.up; hang }; await $2.up", 0);
    }

    void takesTheNewProject()
    {
        QFETCH(const int, code);
        const Installation suite;
        const QString project = suite.write(u"work/p.prj"_s, "old", oldTime);
        ConversionRun run;
        QSignalSpy ends(&run, &ConversionRun::ended);
        QVERIFY(run.start(program(suite), {project, pidFile(suite)}, project));
        QTRY_COMPARE(ends.size(), 1);
        QCOMPARE(run.outcome(), Outcome::Created);
        QCOMPARE(run.exitCode(), code);
        QCOMPARE(run.warning().isEmpty(), code == 0);
        QCOMPARE(suite.read(project), QByteArray("new\n"));
        QCOMPARE(suite.running(pidFile(suite)), QByteArrayList());
        QCOMPARE(hiddenFiles(suite.path(u"work"_s)), QStringList());
    }

    // An empty file counts where it is given that a file does; the old project is never the price.
    void keepsTheOldProjectOnAFullDisk_data()
    {
        using enum ConversionRun::EmptyFile;
        const TestRows<ConversionRun::EmptyFile, Outcome, QString> row("rule", "outcome", "old");
        row("counts", Counts, Outcome::Created, u"work/p.prj.old2"_s);
        row("refused", Refused, Outcome::NotCreated, u"work/p.prj"_s);
    }

    void keepsTheOldProjectOnAFullDisk()
    {
        const auto [old, rule] = fetched<QString, ConversionRun::EmptyFile>("old", "rule");
        const Installation suite;
        const QString project = suite.write(u"work/p.prj"_s, "old", oldTime);
        suite.write(u"work/p.prj.old"_s, "the user's");
        ConversionRun run;
        run.setEmptyFile(rule);
        QSignalSpy ends(&run, &ConversionRun::ended);
        QVERIFY(run.start(suite.writeChild(u"c"_s, "write $1; exit 1"), {project}, project));
        QTRY_COMPARE(ends.size(), 1);
        QTEST(run.outcome(), "outcome");
        QCOMPARE(run.warning().contains("p.prj.old2"_L1), rule == ConversionRun::EmptyFile::Counts);
        QCOMPARE(suite.read(old), QByteArray("old"));
        QCOMPARE(QFileInfo(suite.path(old)).lastModified(), oldTime);
        QCOMPARE(suite.read(u"work/p.prj.old"_s), QByteArray("the user's"));
    }

    void sparesWhatWasThereBefore()
    {
        const Installation suite;
        QProcess viewer;
        viewer.start(u"sh"_s, {u"-c"_s, u"setsid sleep 1000 & echo $!"_s});
        QVERIFY(viewer.waitForFinished());
        const QByteArray stray = viewer.readAll();
        ConversionRun run;
        QSignalSpy ends(&run, &ConversionRun::ended);
        QVERIFY(run.start(suite.writeChild(u"convert"_s, ""), {}, suite.path(u"work/p.prj"_s)));
        QTRY_COMPARE(ends.size(), 1);
        QVERIFY(Installation::isAlive(stray));
        StrayProcesses::stop(500);
        QVERIFY(!Installation::isAlive(stray));
    }

    void keepsALinkThatWasTheProject()
    {
        const Installation suite;
        const QString target = suite.write(u"shared.prj"_s, "shared");
        const QString project = suite.path(u"work/p.prj"_s);
        QVERIFY(QFile::link(target, project));
        ConversionRun run;
        QSignalSpy ends(&run, &ConversionRun::ended);
        QVERIFY(run.start(suite.writeChild(u"convert"_s, ""), {}, project));
        QTRY_COMPARE(ends.size(), 1);
        QCOMPARE(QFileInfo(project).symLinkTarget(), target);
        // A new project takes the link's place and leaves the file it led to alone.
        QVERIFY(run.start(suite.writeChild(u"new"_s, "write $1 new"), {project}, project));
        QTRY_COMPARE(ends.size(), 2);
        QVERIFY(!QFileInfo(project).isSymLink());
        QCOMPARE(suite.read(project), QByteArray("new\n"));
        QCOMPARE(suite.read(target), QByteArray("shared"));
    }

    void takesUpWhatAKilledRunLeft()
    {
        const Installation suite;
        const QString project = suite.write(u"work/p.prj"_s, "old", oldTime);
        const QString script = suite.writeChild(u"convert"_s, "");
        QString aside;
        {
            ConversionRun run;
            QVERIFY(run.start(suite.writeChild(u"wait"_s, "hang"), {}, project));
            aside = suite.path(u"work/"_s) + hiddenFiles(suite.path(u"work"_s)).filter(u"old"_s).value(0);
            QVERIFY(QFile::copy(aside, suite.path(u"saved"_s)));
        }
        suite.write(u"work/p.prj"_s, "half");
        QVERIFY(QFile::rename(suite.path(u"saved"_s), aside));
        ConversionRun next;
        QSignalSpy ends(&next, &ConversionRun::ended);
        QVERIFY(next.start(script, {}, project));
        QTRY_COMPARE(ends.size(), 1);
        QCOMPARE(suite.read(project), QByteArray("old"));
        QCOMPARE(hiddenFiles(suite.path(u"work"_s)), QStringList());
    }

private:
    static QString program(const Installation& suite)
    {
        QFETCH(const QByteArray, script);
        if (script == "#missing") {
            return suite.path(u"missing"_s);
        }
        if (script == "#not executable") {
            return suite.write(u"convert"_s, "#!/bin/sh\n");
        }
        if (script == "#no format") {
            const QString file = suite.write(u"convert"_s, QByteArray(100, '\0'));
            QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            return file;
        }
        return suite.writeChild(u"convert"_s, script.startsWith("#!") ? script : "mark $2\n" + script);
    }
};

KOVRA_TEST(ConverterFaultsTest)
#include "ConverterFaultsTest.moc"

// SPDX-License-Identifier: MIT
#include "Installation.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

QList<QByteArray> survivors(const Installation& suite)
{
    QList<QByteArray> alive = suite.read(u"pids"_s).split('\n');
    alive.removeIf([](const QByteArray& pid) { return !Installation::isAlive(pid); });
    return alive;
}

} // namespace

/// However the program is ended: nothing runs on, nothing lies about, and the old project is there.
class EndingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothing_data()
    {
        const TestRows<int> row("signal");
        row("TERM", SIGTERM);
        row("HUP", SIGHUP);
        row("INT", SIGINT);
        row("QUIT", SIGQUIT);
        row("SEGV", SIGSEGV);
        row("KILL", SIGKILL);
    }

    void leavesNothing()
    {
        QFETCH(const int, signal);
        const Installation suite;
        const QByteArray pids = suite.path(u"pids"_s).toUtf8();
        suite.define("<projectCreator><name>T</name><orvcProject>1</orvcProject><exe>" +
                     suite
                         .writeScript(u"convert"_s, "M=" + pids + R"(
echo $$ >> $M
sleep 1000 & echo $! >> $M
setsid sh -c "echo \$\$ >> $M; trap '' TERM HUP; sleep 1000; :" &
(setsid sh -c "echo \$\$ >> $M; sleep 1000; :" &)
while [ $(wc -l < $M) -lt 4 ]; do sleep 0.02; done
echo half > "$1"
wait
)")
                         .toUtf8() +
                     "</exe><exeargs>%PF</exeargs></projectCreator>");
        const QString project = suite.write(u"work/p.prj"_s, "old", QDateTime::fromSecsSinceEpoch(1'000'000'000));
        QFile::link(QStringLiteral(PROGRAM), suite.path(u"bin/ProjectCreation"_s));
        QProcess program;
        program.start(suite.path(u"bin/ProjectCreation"_s),
                      {u"-batch"_s, u"-prj"_s, project, u"-type"_s, u"T"_s, u"-overwrite"_s});
        QTRY_COMPARE(suite.read(project), QByteArray("half\n"));
        QCOMPARE(survivors(suite).size(), 4);
        ::kill(pid_t(program.processId()), signal);
        QVERIFY(program.waitForFinished());
        // One that is killed has a helper that cleans up, and may take a moment longer.
        QTRY_COMPARE(suite.read(project), QByteArray("old"));
        QTRY_COMPARE(survivors(suite), QList<QByteArray>());
        QCOMPARE(QFileInfo(project).lastModified(), QDateTime::fromSecsSinceEpoch(1'000'000'000));
        QTRY_COMPARE(QDir(suite.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"p.prj"_s});
    }
};

KOVRA_TEST(EndingTest)
#include "EndingTest.moc"

// SPDX-License-Identifier: MIT
#include "process/ConversionRun.h"
#include "Installation.h"
#include "TestMain.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

} // namespace

class ConversionRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesTheEnd_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<ConversionRun::Outcome>("outcome");
        QTest::addColumn<QString>("detail");
        QTest::addColumn<bool>("leavesProject");
        using enum ConversionRun::Outcome;
        QTest::newRow("created") << QByteArray("echo new > \"$1\"") << Created << QString() << true;
        QTest::newRow("created, exit code 1") << QByteArray("echo new > \"$1\"; exit 1") << Created << u"1"_s << true;
        QTest::newRow("nothing written") << QByteArray("exit 0") << NotCreated << QString() << false;
        QTest::newRow("failed") << QByteArray("echo reason >&2; exit 3") << NotCreated << u"3"_s << false;
        QTest::newRow("crashed half-way")
            << QByteArray("echo half > \"$1\"; kill -SEGV $$") << Failed << u"crash"_s << false;
        QTest::newRow("reads its input") << QByteArray("cat; echo new > \"$1\"") << Created << QString() << true;
    }

    void judgesTheEnd()
    {
        QFETCH(const QByteArray, script);
        QFETCH(const ConversionRun::Outcome, outcome);
        QFETCH(const QString, detail);
        QFETCH(const bool, leavesProject);
        Installation suite;
        const QString project = suite.write(u"work/old.prj"_s, "old");
        ConversionRun run;
        QSignalSpy ended(&run, &ConversionRun::ended);
        QVERIFY(run.start(suite.writeScript(u"convert"_s, script), {project}, project));
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(run.outcome(), outcome);
        QVERIFY2(run.detail().contains(detail), qPrintable(run.detail()));
        QCOMPARE(run.detail().isEmpty(), detail.isEmpty());
        QCOMPARE(QFile::exists(project), leavesProject);
        QVERIFY(suite.read(u"work/old.prj"_s) != "old");
    }

    void saysWhyItCouldNotStart()
    {
        Installation suite;
        ConversionRun run;
        QSignalSpy ended(&run, &ConversionRun::ended);
        const QString project = suite.path(u"work/p.prj"_s);
        QVERIFY(!run.start(suite.path(u"missing"_s), {}, project));
        QCOMPARE(ended.size(), 1);
        QCOMPARE(run.outcome(), ConversionRun::Outcome::NotStarted);
        QVERIFY2(run.detail().contains(suite.path(u"missing"_s)), qPrintable(run.detail()));
        // A folder in the project file's place can not be removed, nor taken for a result.
        suite.write(u"work/p.prj/x"_s, "");
        QVERIFY(!run.start(suite.writeScript(u"convert"_s, "exit 0"), {}, project));
        QCOMPARE(ended.size(), 2);
        QCOMPARE(run.outcome(), ConversionRun::Outcome::NotStarted);
    }

    void stopsEverythingItStarted()
    {
        Installation suite;
        const QString project = suite.path(u"work/p.prj"_s);
        const QString script =
            suite.writeScript(u"convert"_s, "trap '' TERM\nsh -c 'trap \"\" TERM; echo $$; while :; do "
                                            "sleep 1; done' &\necho half > \"$1\"\nwait\n");
        ConversionRun run;
        QSignalSpy ended(&run, &ConversionRun::ended);
        QVERIFY(run.start(script, {project}, project));
        QByteArray grandChild;
        QTRY_VERIFY(!(grandChild += run.takeOutput().toLatin1()).isEmpty() && QFile::exists(project));
        QVERIFY(Installation::isAlive(grandChild));
        run.stop();
        QCOMPARE(ended.size(), 1);
        QCOMPARE(run.outcome(), ConversionRun::Outcome::Stopped);
        QVERIFY(!QFile::exists(project));
        QTRY_VERIFY(!Installation::isAlive(grandChild));

        // What a converter leaves behind at its end goes too, and so does one that runs when we are gone.
        const QString forking = suite.writeScript(u"fork"_s, "sleep 1000 >/dev/null 2>&1 &\necho $!\n");
        QVERIFY(run.start(forking, {}, project));
        QTRY_COMPARE(ended.size(), 2);
        const QByteArray leftBehind = run.takeOutput().toLatin1();
        QVERIFY(!leftBehind.isEmpty());
        QTRY_VERIFY(!Installation::isAlive(leftBehind));
        {
            ConversionRun abandoned;
            QVERIFY(abandoned.start(script, {project}, project));
            grandChild.clear();
            QTRY_VERIFY(!(grandChild += abandoned.takeOutput().toLatin1()).isEmpty());
        }
        QTRY_VERIFY(!Installation::isAlive(grandChild));
    }

    void decodesAcrossReads()
    {
        Installation suite;
        ConversionRun run;
        QSignalSpy ended(&run, &ConversionRun::ended);
        const QString script = suite.writeScript(
            u"convert"_s, "printf 'caf\\303'; sleep 0.1; printf '\\251 <b>'; echo problem >&2; printf '\\377\\n'\n");
        QVERIFY(run.start(script, {}, suite.path(u"work/p.prj"_s)));
        QString output;
        connect(&run, &ConversionRun::outputReady, this, [&] { output += run.takeOutput(); });
        QTRY_COMPARE(ended.size(), 1);
        output += run.takeOutput();
        QCOMPARE(output, u"café <b>problem\n\uFFFD\n"_s);
    }
};

KOVRA_TEST(ConversionRunTest)
#include "ConversionRunTest.moc"

// SPDX-License-Identifier: MIT
#include "Installation.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QProcess>

using namespace Qt::StringLiterals;

/// However the program is ended: nothing runs on, nothing lies about, and the old project is there.
class EndingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothing_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<bool>("launches");
        // On Windows Ctrl+C; Wine hands on nothing else.
        for (const auto& [name, signal] :
             {std::pair{"INT", SIGINT},
#ifdef Q_OS_UNIX
              std::pair{"TERM", SIGTERM}, std::pair{"HUP", SIGHUP}, std::pair{"QUIT", SIGQUIT},
              std::pair{"SEGV", SIGSEGV}, std::pair{"KILL", SIGKILL}
#endif
             }) {
            QTest::addRow("%s, a conversion", name) << signal << false;
            QTest::addRow("%s, a launcher", name) << signal << true;
        }
    }

    void leavesNothing()
    {
        const auto [signal, launches] = fetched<int, bool>("signal", "launches");
        [[maybe_unused]] const OwnConsole console;
        const Installation suite;
        const QByteArray script = suite
                                      .writeChild(u"convert"_s, R"(
mark $0.pids
start { mark $0.pids; write $0.1; hang }; await $0.1
start-session { mark $0.pids; write $0.2; ignore-requests; hang }; await $0.2
start-daemon { mark $0.pids; write $0.3; hang }; await $0.3
if-exists $0.converts { write $1 half }
write $0.up
hang)")
                                      .toUtf8();
        suite.define("<projectCreator><name>T</name><orvcProject>1</orvcProject><exe>" + script +
                     "</exe><exeargs>%PF</exeargs></projectCreator><applicationPage><application name='T'><exe>" +
                     script + "</exe><exeargs>%P+</exeargs></application></applicationPage>");
        const QByteArray old = "VersionTag 45\nStartProjectMarker\nname=p\nsourceDir=.\noutputDir=out\n*project=ORVC\n"
                               "a.c\nEndContainedFilesMarker\nEndOfProjectFile\n";
        const QString project = suite.write(u"work/p.prj"_s, old, QDateTime::fromSecsSinceEpoch(1'000'000'000));
        if (!launches) {
            suite.write(u"convert.converts"_s, "");
        }
        const auto temporaryFiles = [] { return QDir(QDir::tempPath()).entryList({u"KOVRA-*"_s}).size(); };
        suite.placeProgram(QStringLiteral(PROGRAM), u"bin/ProjectCreation"_s);
        QProcess program;
        const QString task = launches ? u"-run T -c"_s : u"-type T -overwrite"_s;
        program.start(suite.path(u"bin/ProjectCreation"_s),
                      u"-batch -prj"_s.split(u' ') + QStringList{project} + task.split(u' '));
        QTRY_COMPARE(suite.read(project), launches ? old : QByteArray("half\n"));
        QTRY_VERIFY(QFile::exists(suite.path(u"convert.up"_s)));
        QCOMPARE(temporaryFiles() > 0, launches);
        QCOMPARE(suite.running(u"convert.pids"_s).size(), 4);
        ::kill(pid_t(program.processId()), signal);
        QVERIFY(program.waitForFinished());
        if (signal != SIGSEGV && signal != SIGKILL) {
            QCOMPARE(program.exitCode(), 1);
        }
        // One that is killed has a helper that cleans up, and may take a moment longer.
        QTRY_COMPARE(suite.read(project), old);
        QTRY_COMPARE(suite.running(u"convert.pids"_s), QByteArrayList());
        QCOMPARE(QFileInfo(project).lastModified(), QDateTime::fromSecsSinceEpoch(1'000'000'000));
        QTRY_COMPARE(QDir(suite.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"p.prj"_s});
        QTRY_COMPARE(temporaryFiles(), 0);
    }
};

KOVRA_TEST(EndingTest)
#include "EndingTest.moc"

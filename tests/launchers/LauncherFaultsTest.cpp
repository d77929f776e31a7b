// SPDX-License-Identifier: MIT
#include "Launchers.h"
#include "process/OutputDecoder.h"
#include "process/StrayProcesses.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

namespace {

/// How a row's run comes to its end.
enum class Ending { ByItself, Stopped, ProgramCloses };

/// One launcher, whose tool is a script in a folder of its own.
struct FaultyTool : Launchers
{
    explicit FaultyTool(const QByteArray& script, const QByteArray& output)
    {
        program = writeChild(u"tool/tool"_s, script);
        define("<application name='Tool'><exe>" + program.toUtf8() + "</exe><displayoutput>" + output +
               "</displayoutput><runFromExeDir>1</runFromExeDir></application>");
    }

    /// Of the processes that the script has named, those that run.
    QByteArrayList alive() const { return running(u"work/pids"_s); }

    QString program;
};

} // namespace

Q_DECLARE_METATYPE(Ending)

class LauncherFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { StrayProcesses::adopt(); }

    void leavesNothingBehind_data()
    {
        const TestRows<QByteArray, QByteArray, Ending, QString, QString> row("script", "output", "ending", "says",
                                                                             "holds");
        // What a child starts it tells in work/pids, seen from the folder it runs in.
        using enum Ending;
        row("missing", "missing", "none", ByItself, u"Failed to Start"_s, u"Command: "_s);
        row("empty program", "", "none", ByItself, {}, {});
        row("crash", "crash", "text", ByItself, u"Process Crashed"_s, u"crashed"_s);
        row("killed", "print last; die", "none", ByItself, u"Process Crashed"_s, u"last"_s);
        row("exit code", "exit 255", "none", ByItself, u"Process Failed [255]"_s, u"Exit code: 255"_s);
        row("reason on standard output", "print no licence; exit 3", "none", ByItself, u"Process Failed [3]"_s,
            u"output:\nno licence"_s);
        row("reason on both channels", "print one; print-error two; exit 3", "text", ByItself, u"Process Failed [3]"_s,
            u"output:\none\n\nThe end of its error output:\ntwo"_s);
        row("reason behind a flood", "flood 9000000 y; print reason; exit 3", "text", ByItself, u"Process Failed [3]"_s,
            u"y\nreason"_s);
        row("nothing printed", "exit 0", "text", ByItself, u"No data returned from process"_s, u"Exit code: 0"_s);
        row("only errors printed", "print-error reason", "html", ByItself, u"No data returned from process"_s,
            u"reason"_s);
        row("hangs", "mark ../work/pids; hang", "none", Stopped, {}, {});
        row("hangs while the program closes", "mark ../work/pids; hang", "none", ProgramCloses, {}, {});
        row("hangs with the window locked", "mark ../work/pids; hang", "text", Stopped, {}, {});
        row("ignores being asked", "ignore-requests; mark ../work/pids; hang", "none", Stopped, {}, {});
        row("child in its group", "start { mark ../work/pids; hang }; wait", "none", Stopped, {}, {});
        row("deaf child in its group", "start { ignore-requests; mark ../work/pids; hang }; wait", "none", Stopped, {},
            {});
        row("child in a session of its own", "start-session { mark ../work/pids; hang }; wait", "none", ProgramCloses,
            {}, {});
        row("daemon", "start-daemon { close-output; mark ../work/pids; hang }", "none", ByItself, {}, {});
        row("deaf daemon", "start-daemon { ignore-requests; close-output; mark ../work/pids; hang }", "none", ByItself,
            {}, {});
        row("child that keeps the output open", "start { mark ../work/pids; hang }; print done", "text", ByItself, {},
            u"done"_s);
        row("flood", "flood 60000000 y", "text", ByItself, {}, u"y\ny\n"_s);
        row("flood that nobody wants", "flood 60000000 y", "none", ByItself, {}, {});
        row("flood of errors", "flood-error 60000000 y; print x", "text", ByItself, {}, u"x"_s);
        row("endless flood", "mark ../work/pids; flood 0 y", "none", Stopped, {}, {});
        row("one long line", "long-line 30000000", "text", ByItself, {}, u"xxxx"_s);
        row("long message", "long-line 300000", "message", ByItself, {}, u"is in "_s);
        row("html without a blank", "long-line 1000000", "html", ByItself, {}, u"is in "_s);
        row("html of many rows", "print <table>; flood 10000000 <tr><td>cell</td></tr>", "html", ByItself, {},
            u"is in "_s);
        row("html cut in a tag", "put <p>text<table", "html", ByItself, {}, u"text"_s);
        row("bad text", "put a\\xb\\0c", "text", ByItself, {}, u"a%1b"_s.arg(OutputDecoder::text("\x82")));
        row("markup as text", "print '<b>&amp;'", "message", ByItself, {}, u"<b>&amp;"_s);
        row("nonsense as progress", "print [9/3]; print [99999999999/1]; print [/]", "text", ByItself, {}, u"[9/3]"_s);
        row("progress without an end", "mark ../work/pids; put '[1/2] '; long-line 9000000; hang", "none", Stopped, {},
            {});
        row("closes its output", "close-output; pause 200", "none", ByItself, {}, {});
        row("reads its input", "copy-input; print read", "text", ByItself, {}, u"read"_s);
        row("many exits", "repeat 200 { start { exit 3 } }; wait; print all", "text", ByItself, {}, u"all"_s);
#ifdef Q_OS_UNIX
        row("not executable", "locked", "none", ByItself, u"Failed to Start"_s, u"Permission"_s);
        row("no interpreter", "#!\n", "none", ByItself, u"Failed to Start"_s, u"tool/tool"_s);
        row("kills its group", "#!sleep 1000 & echo $! >> ../work/pids\nkill -TERM 0", "none", ByItself,
            u"Process Crashed"_s, {});
        row("stopped by a signal", "#!echo $$ >> ../work/pids\nkill -STOP $$", "none", Stopped, {}, {});
        row("deletes its folder", "remove ../tool; print gone", "text", ByItself, {}, u"gone"_s);
        row("full temporary folder", "remove $TMPDIR; flood 60000000 y", "text", ByItself, {}, u"y\ny\n"_s);
#endif
    }

    void leavesNothingBehind()
    {
        const auto [script, output, ending, says, holds] =
            fetched<QByteArray, QByteArray, Ending, QString, QString>("script", "output", "ending", "says", "holds");
        const FaultyTool suite(script, output);
        const QByteArray folder = qgetenv("TMPDIR");
        const QTemporaryDir temporary;
        qputenv("TMPDIR", temporary.path().toLocal8Bit());
        RunAppData& tool = FaultyTool::tool(1);
        if (script == "missing") {
            QVERIFY(QFile::remove(suite.program));
        } else if (script == "locked" || script == "#!\n") {
            QVERIFY(QFile::remove(suite.program));
            suite.write(u"tool/tool"_s, "#!/no/such/interpreter\n");
            QFile::setPermissions(suite.program,
                                  script == "locked" ? QFile::ReadOwner : QFile::ReadOwner | QFile::ExeOwner);
        }
        const BoxAnswers boxes({QMessageBox::Ok});
        tool.button->click();
        if (ending != Ending::ByItself) {
            QTRY_VERIFY(!suite.alive().isEmpty());
        }
        if (ending == Ending::Stopped) {
            tool.Stop();
        } else if (ending == Ending::ProgramCloses) {
            appRegistry->ShutDown();
        }
        QTRY_VERIFY_WITH_TIMEOUT(!tool.isRunning(), 30000);
        QTRY_COMPARE(boxes.texts, says.isEmpty() ? QStringList() : QStringList{u"Tool|"_s + says});
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(tool.button->text(), u"Tool"_s);
        const bool opensWindow = says.isEmpty() && !holds.isEmpty();
        QTRY_COMPARE(appRegistry->openDialogs.isEmpty(), !opensWindow);
        const QString told = opensWindow ? FaultyTool::shown() : boxes.details.value(0);
        QVERIFY2(told.contains(holds), qPrintable(told.left(2000)));

        appRegistry->ShutDown();
        QTRY_COMPARE(suite.alive(), QByteArrayList());
        QVERIFY(!FaultyTool::page().ProgramsRunning());
        QVERIFY(!StrayProcesses::any());
        QCOMPARE(QDir(temporary.path()).entryList({u"KOVRA-*"_s}), QStringList());
        qputenv("TMPDIR", folder);
    }
};

KOVRA_TEST(LauncherFaultsTest)
#include "LauncherFaultsTest.moc"

// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Installation.h"
#include "launchers/PageData.h"
#include "launchers/RunAppData.h"
#include "process/StrayProcesses.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

/// How a row's run comes to its end.
enum class Ending { ByItself, Stopped, ProgramCloses };

/// One launcher with a button, whose tool is a script of its own folder.
struct FaultyTool : Installation
{
    explicit FaultyTool(const QByteArray& script, const QByteArray& output)
    {
        program = write(u"tool/tool"_s, script.startsWith("#!") ? script : "#!/bin/sh\n" + script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        define("<applicationPage><application name='Tool'><exe>" + program.toUtf8() + "</exe><displayoutput>" + output +
               "</displayoutput><runFromExeDir>1</runFromExeDir></application></applicationPage>");
        start().values.useMessageViewerMessages = false;
        launcherPage = appRegistry->definitions.applicationPages.at(0).get();
        launcherPage->SetProjectFile(path(u"work/p.prj"_s));
        launcherPage->BuildButtons(new QGridLayout(&holder));
    }

    RunAppData& launcher() const { return *launcherPage->applications.at(0); }

    /// Of the processes that the script has named, those that run.
    QByteArrayList alive() const
    {
        QByteArrayList running = read(u"work/pids"_s).split('\n');
        running.removeIf([](const QByteArray& pid) { return !isAlive(pid); });
        return running;
    }

    static QString shown()
    {
        const QDialog* window = appRegistry->openDialogs.value(0);
        if (!window) {
            return {};
        }
        const auto* text = window->findChild<QPlainTextEdit*>();
        const auto* browser = window->findChild<QTextBrowser*>();
        return text ? text->toPlainText() : browser ? browser->toPlainText() : window->findChild<QLabel*>()->text();
    }

    QString program;
    QWidget holder;
    PageData* launcherPage = nullptr;
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
        // What a script starts it tells in work/pids, seen from the folder it runs in.
        const auto self = [](const QByteArray& rest) { return "echo $$ >> ../work/pids\n" + rest; };
        const auto child = [](const QByteArray& command, const QByteArray& rest) {
            return command + " & echo $! >> ../work/pids\n" + rest;
        };
        using enum Ending;
        row("missing", "missing", "none", ByItself, u"Failed to Start"_s, u"Command: "_s);
        row("not executable", "locked", "none", ByItself, u"Failed to Start"_s, u"Permission"_s);
        row("no interpreter", "#!/no/such/interpreter\n", "none", ByItself, u"Failed to Start"_s, u"tool/tool"_s);
        row("empty program", "#!/bin/sh", "none", ByItself, {}, {});
        row("crash", "kill -SEGV $$", "text", ByItself, u"Process Crashed"_s, u"crashed"_s);
        row("killed", "echo last; kill -KILL $$", "none", ByItself, u"Process Crashed"_s, u"last"_s);
        row("kills its group", child("sleep 1000", "kill -TERM 0"), "none", ByItself, u"Process Crashed"_s, {});
        row("exit code", "exit 255", "none", ByItself, u"Process Failed [255]"_s, u"Exit code: 255"_s);
        row("reason on standard output", "echo no licence; exit 3", "none", ByItself, u"Process Failed [3]"_s,
            u"output:\nno licence"_s);
        row("reason on both channels", "echo one; echo two >&2; exit 3", "text", ByItself, u"Process Failed [3]"_s,
            u"output:\none\n\nThe end of its error output:\ntwo"_s);
        row("reason behind a flood", "yes | head -c 9000000; echo reason; exit 3", "text", ByItself,
            u"Process Failed [3]"_s, u"y\nreason"_s);
        row("nothing printed", "exit 0", "text", ByItself, u"No data returned from process"_s, u"Exit code: 0"_s);
        row("only errors printed", "echo reason >&2", "html", ByItself, u"No data returned from process"_s,
            u"reason"_s);
        row("hangs", self("sleep 1000"), "none", Stopped, {}, {});
        row("hangs while the program closes", self("sleep 1000"), "none", ProgramCloses, {}, {});
        row("hangs with the window locked", self("sleep 1000"), "text", Stopped, {}, {});
        row("ignores being asked", self("trap '' TERM; while :; do sleep 1; done"), "none", Stopped, {}, {});
        row("stopped by a signal", self("kill -STOP $$"), "none", Stopped, {}, {});
        row("child in its group", child("sleep 1000", "wait"), "none", Stopped, {}, {});
        row("deaf child in its group", child("sh -c 'trap \"\" TERM; sleep 1000'", "wait"), "none", Stopped, {}, {});
        row("child in a session of its own", child("setsid sleep 1000", "wait"), "none", ProgramCloses, {}, {});
        row("daemon", "setsid sh -c 'echo $$ >> ../work/pids; exec sleep 1000' >/dev/null 2>&1 </dev/null &", "none",
            ByItself, {}, {});
        row("deaf daemon",
            "setsid sh -c 'trap \"\" TERM; echo $$ >> ../work/pids; while :; do sleep 1; done' >/dev/null 2>&1 &",
            "none", ByItself, {}, {});
        row("child that keeps the output open", child("sleep 1000", "echo done"), "text", ByItself, {}, u"done"_s);
        row("flood", "yes | head -c 60000000", "text", ByItself, {}, u"y\ny\n"_s);
        row("flood that nobody wants", "yes | head -c 60000000", "none", ByItself, {}, {});
        row("flood of errors", "yes | head -c 60000000 >&2; echo x", "text", ByItself, {}, u"x"_s);
        row("endless flood", self("exec yes"), "none", Stopped, {}, {});
        row("one long line", "head -c 30000000 /dev/zero | tr '\\0' x", "text", ByItself, {}, u"xxxx"_s);
        row("long message", "head -c 300000 /dev/zero | tr '\\0' x", "message", ByItself, {}, u"is in "_s);
        row("html without a blank", "head -c 1000000 /dev/zero | tr '\\0' x", "html", ByItself, {}, u"is in "_s);
        row("html of many rows", "echo '<table>'; yes '<tr><td>cell</td></tr>' | head -n 400000", "html", ByItself, {},
            u"is in "_s);
        row("html cut in a tag", "printf '<p>text<table'", "html", ByItself, {}, u"text"_s);
        row("bad text", "printf 'a\\377b\\0c'", "text", ByItself, {}, u"a\uFFFDb"_s);
        row("markup as text", "echo '<b>&amp;'", "message", ByItself, {}, u"<b>&amp;"_s);
        row("nonsense as progress", "echo '[9/3]'; echo '[99999999999/1]'; echo '[/]'", "text", ByItself, {},
            u"[9/3]"_s);
        row("progress without an end", self("printf '[1/2] '; yes | tr -d '\\n' | head -c 9000000; sleep 1000"), "none",
            Stopped, {}, {});
        row("closes its output", "exec >&- 2>&-; sleep 0.2", "none", ByItself, {}, {});
        row("reads its input", "cat; echo read", "text", ByItself, {}, u"read"_s);
        row("deletes its folder", "rm -rf ../tool; echo gone", "text", ByItself, {}, u"gone"_s);
        row("a thousand exits", "for i in $(seq 1000); do (exit 3) & done; wait; echo all", "text", ByItself, {},
            u"all"_s);
        row("full temporary folder", "rm -r \"$TMPDIR\"; yes | head -c 60000000", "text", ByItself, {}, u"y\ny\n"_s);
    }

    void leavesNothingBehind()
    {
        QFETCH(const QByteArray, script);
        QFETCH(const QByteArray, output);
        QFETCH(const Ending, ending);
        QFETCH(const QString, says);
        QFETCH(const QString, holds);
        const FaultyTool suite(script, output);
        const QByteArray folder = qgetenv("TMPDIR");
        const QTemporaryDir temporary;
        qputenv("TMPDIR", temporary.path().toLocal8Bit());
        RunAppData& tool = suite.launcher();
        if (script == "missing") {
            QVERIFY(QFile::remove(suite.program));
        } else if (script == "locked") {
            QVERIFY(QFile::setPermissions(suite.program, QFile::ReadOwner));
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
        QVERIFY(!suite.launcherPage->ProgramsRunning());
        QVERIFY(!StrayProcesses::any());
        QCOMPARE(QDir(temporary.path()).entryList({u"KOVRA-*"_s}), QStringList());
        qputenv("TMPDIR", folder);
    }
};

KOVRA_TEST(LauncherFaultsTest)
#include "LauncherFaultsTest.moc"

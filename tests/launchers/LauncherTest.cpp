// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "dialogs/BusyDialog.h"
#include "Installation.h"
#include "launchers/LauncherGrid.h"
#include "launchers/PageData.h"
#include "launchers/RunAppData.h"
#include "process/ExecutableLookup.h"
#include "process/StrayProcesses.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextBrowser>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// A launcher page with buttons, on a project that does not exist.
struct Launchers : Installation
{
    PageData& define(const QByteArray& applications)
    {
        Installation::define("<applicationPage>" + applications + "</applicationPage>");
        start().values.useMessageViewerMessages = false;
        PageData& page = *appRegistry->definitions.applicationPages.at(0);
        page.SetProjectFile(path(u"work/p.prj"_s));
        holder = std::make_unique<QWidget>();
        page.BuildButtons(new QGridLayout(holder.get()));
        return page;
    }

    QByteArray application(int number, const QByteArray& script, const QByteArray& more = {}) const
    {
        const QString name = u"tool%1"_s.arg(number);
        return "<application name='Tool\\n" + QByteArray::number(number) + "'><exe>" +
               writeScript(name, script).toUtf8() + "</exe>" + more + "</application>";
    }

    std::unique_ptr<QWidget> holder;
};

} // namespace

class LauncherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesButtons()
    {
        const auto placed = [](const QList<LauncherSpan>& launchers, int columns) {
            QString cells;
            for (const LauncherCell& cell : placeLaunchers(launchers, columns)) {
                cells += u" %1,%2+%3"_s.arg(cell.row).arg(cell.column).arg(cell.columnSpan);
            }
            return cells;
        };
        QCOMPARE(placed({{1, 1}, {1, 1}, {1, 1}, {1, 1}}, 3), u" 1,1+1 1,3+1 1,5+1 3,1+1"_s);
        QCOMPARE(placed({{2, 1}, {2, 1}, {1, 1}}, 3), u" 1,1+3 1,1+3 1,5+1"_s);
        QCOMPARE(placed({{0, 1}, {3, 1}}, 3), u" 1,1+1 1,1+5"_s);
        QCOMPARE(placed({{-1, 1}, {900000000, 1}, {1, 1}}, 100), u" 1,1+1 1,1+199 3,1+1"_s);
    }

    void readsLaunchers()
    {
        Launchers suite;
        PageData& page = suite.define(R"(<columns>3</columns>
            <application name="A\nB"><exe TYPE="ORVC">missing/c</exe><dependency>no such program</dependency>
              <exeargs>
                %PF</exeargs><columnspan>4</columnspan><displayoutput>text</displayoutput><displayoutput>pdf</displayoutput>
              <leftimage>arrow</leftimage><runFromExeDir>1</runFromExeDir><runFromExeDir>0</runFromExeDir></application>
            <application name="R"><exe>sh</exe><description>&lt;b&gt;</description><colour>nonsense</colour>
              <condition name="G" action="disable"/><condition name="G" action="enable"/></application>
            <application><exe TYPE="ORVC">sh</exe></application>)");
        RunAppData& first = *page.applications.at(0);
        QVERIFY(page.applications.size() == 3 && page.columns == 4 && first.name == "A\nB"_L1);
        QCOMPARE(first.exeargs, (QStringList{QString(), u"%PF"_s}));
        QVERIFY(first.displayMode == NoDisplay && first.busyCursor && first.runFromExeDir);
        // The bin folder answers the empty name of the other analyser's program, the dependency is missing.
        QCOMPARE(first.button->toolTip(), u"Disabled, could not locate required executables: no such program"_s);
        const auto arrows = first.button->parentWidget()->findChildren<QLabel*>();
        QVERIFY(!first.button->isEnabled() && arrows.size() == 1 && !arrows[0]->pixmap().isNull());
        QVERIFY(page.applications[1]->startsDisabled && page.applications[1]->button->toolTip().contains("&lt;b"_L1));
        QVERIFY(!page.applications[2]->button);
        page.SetIsORVC(true);
        ExecutableLookup lookup(appRegistry->executableFolders());
        QVERIFY(!first.ExecutablesFound(lookup));
        QCOMPARE(first.disabledReason, u"Disabled, could not locate required executables: missing/c,no such program"_s);
    }

    void looksProgramsUp()
    {
        Installation suite;
        suite.start();
        const QString tool = suite.writeScript(u"orvcpp/bin/onlyhere"_s, "");
        QCOMPARE(FindExecutable(u"onlyhere"_s, appRegistry->executableFolders()), tool);
        QVERIFY(FindExecutable(u"sh"_s, {}).endsWith("/sh"_L1));
    }

    void reportsEachEnd_data()
    {
        const TestRows<QByteArray, QByteArray, QString> row("script", "output", "says");
        row("no output wanted", "yes | head -c 3000000", "none", {});
        row("text", "printf 'a <b>\\377'; echo e >&2", "text", u"a <b>\uFFFD"_s);
        row("empty", "exit 0", "text", u"Tool 1|No data returned from process"_s);
        row("failed", "echo reason >&2; exit 3", "text", u"Tool 1|Process Failed [3]"_s);
        row("not executable", "locked", "cursor", u"Tool 1|Failed to Start"_s);
        row("gone", "gone", "cursor", u"Tool 1|Failed to Start"_s);
        row("crashed", "kill -SEGV $$", "none", u"Tool 1|Process Crashed"_s);
        row("closes its output early", "exec >&- 2>&-; sleep 0.1", "cursor", {});
    }

    void reportsEachEnd()
    {
        QFETCH(const QByteArray, script);
        QFETCH(const QByteArray, output);
        QFETCH(const QString, says);
        const bool starts = !says.endsWith("Failed to Start"_L1);
        const QStringList box = says.startsWith("Tool 1|"_L1) ? QStringList{says} : QStringList{};
        Launchers suite;
        const PageData& page = suite.define(
            suite.application(1, script,
                              "<displayoutput>" + output + "</displayoutput><condition name='G' action='start'/>") +
            suite.application(2, "", "<condition name='G' action='enable'/>"));
        RunAppData& tool = *page.applications[0];
        const QPushButton& next = *page.applications[1]->button;
        const BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        QVERIFY(!next.isEnabled());
        QCOMPARE(next.toolTip(), u"Available once this has succeeded: Tool 1"_s);
        // When its button was made, it could be run.
        QVERIFY(starts ||
                (script == "gone" ? QFile::remove(tool.cppExe) : QFile::setPermissions(tool.cppExe, QFile::ReadOwner)));
        tool.button->click();
        QVERIFY(!starts || tool.button->text() == "Tool 1\nrunning..."_L1);
        QTRY_VERIFY(!tool.isRunning() && !tool.button->text().contains("running"_L1));
        QTRY_COMPARE(boxes.texts, box);
        QCoreApplication::processEvents();
        QVERIFY(boxes.texts.size() == box.size() && !QApplication::overrideCursor());
        QVERIFY(next.isEnabled() == box.isEmpty() && next.toolTip().isEmpty() == box.isEmpty());
        const QDialog* window = appRegistry->openDialogs.value(0);
        QCOMPARE(window ? window->findChild<QPlainTextEdit*>()->toPlainText() : QString(),
                 box.isEmpty() ? says : QString());
        // The end of the road shows the way: what ran, and what it said.
        const QString details = boxes.details.value(0);
        QVERIFY2(box.isEmpty() || says.contains("|No data"_L1) || details.contains(tool.cppExe), qPrintable(details));
        QCOMPARE(details.contains("reason"_L1), script.contains("reason"));
    }

    void nothingStartsWithoutItsFiles()
    {
        Launchers suite;
        const PageData& page = suite.define(suite.application(1, "touch \"$0.ran\""));
        const BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        const QByteArray folder = qgetenv("TMPDIR");
        qputenv("TMPDIR", suite.write(u"work/file"_s, "").toLocal8Bit());
        page.applications[0]->button->click();
        qputenv("TMPDIR", folder);
        // As on a full disk, files can be made but not written.
        rlimit old = {};
        ::getrlimit(RLIMIT_FSIZE, &old);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit none = {0, old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &none);
        page.applications[0]->button->click();
        ::setrlimit(RLIMIT_FSIZE, &old);
        QCOMPARE(boxes.texts.size(), 2);
        QVERIFY2(boxes.texts[0].contains("A temporary file can not be made in "_L1), qPrintable(boxes.texts[0]));
        QVERIFY2(boxes.texts[1].contains(" can not be written: "_L1), qPrintable(boxes.texts[1]));
        QVERIFY(!page.applications[0]->isRunning() && !QFile::exists(suite.path(u"tool1.ran"_s)));
    }

    void showsTheBeginningOfAFlood()
    {
        Launchers suite;
        QByteArray applications;
        for (const char* mode : {"text", "html", "message"}) {
            applications += suite.application(1, "yes '<p>word</p>' | head -c 100000000",
                                              QByteArray("<displayoutput>") + mode + "</displayoutput>");
        }
        for (const auto& tool : suite.define(applications).applications) {
            const qsizetype windows = appRegistry->openDialogs.size();
            tool->button->click();
            QTRY_COMPARE_WITH_TIMEOUT(appRegistry->openDialogs.size(), windows + 1, 60000);
            const QDialog& dialog = *appRegistry->openDialogs.last();
            // Its end names the file that holds everything.
            const auto keptBytes = [&dialog] {
                const auto* text = dialog.findChild<QPlainTextEdit*>();
                const auto* browser = dialog.findChild<QTextBrowser*>();
                const QString shown = text      ? text->document()->lastBlock().text()
                                      : browser ? browser->document()->lastBlock().text()
                                                : dialog.findChild<QLabel*>()->text();
                return QFileInfo(shown.section(u' ', -1).remove(u']')).size();
            };
            QTRY_COMPARE_WITH_TIMEOUT(keptBytes(), 100000000, 30000);
        }
        // Nothing stays behind, neither of this nor of the option and list files.
        appRegistry->ShutDown();
        QCOMPARE(QDir(QDir::tempPath()).entryList({u"KOVRA-*"_s}), QStringList());
    }

    void givesTheToolItsPlaceAndItsMessages()
    {
        Launchers suite;
        PageData& page = suite.define(
            suite.application(1, "pwd > \"$0.out\"; echo \"$ORVCPPPATH\" >> \"$0.out\"; tail -n 1 \"$4\" >> \"$0.out\"",
                              "<runFromExeDir>1</runFromExeDir><exeargs>%P+</exeargs>"));
        appRegistry->values.useMessageViewerMessages = true;
        appRegistry->values.cMessages = {u"7"_s};
        appRegistry->values.cppMessages = {u"8"_s};
        for (const bool isC : {true, false}) {
            // The list is chosen by the suite's current project.
            appRegistry->values.project.projectType = isC ? ProjectType::C : ProjectType::Cpp;
            page.applications[0]->button->click();
            QTRY_VERIFY(!page.applications[0]->isRunning());
            QCOMPARE(suite.read(u"tool1.out"_s), suite.path(u"."_s).chopped(2).toUtf8() + '\n' +
                                                     suite.path(u"orvcpp"_s).toUtf8() +
                                                     (isC ? "\n-only 7\n" : "\n-only 8\n"));
        }
    }

    void stopsWhatItStarted()
    {
        Launchers suite;
        // It says who it is and does not listen.
        const QByteArray deaf = "sh -c 'trap \"\" TERM; echo $$ > \"$0\"; while :; do sleep 1; done' \"$0.pid\" &\n";
        PageData& page = suite.define(
            suite.application(1, "trap '' TERM\n" + deaf + "wait\n", "<condition name='G' action='finish'/>") +
            suite.application(2, "echo hello",
                              "<displayoutput>message</displayoutput><condition name='G' action='disable'/>") +
            suite.application(3, deaf + "wait\n", "<displayoutput>cursor</displayoutput>") +
            suite.application(4, "setsid " + deaf) + suite.application(5, "sleep 1000 & echo $! > \"$0.pid\""));
        StrayProcesses::adopt();
        const auto tool = [&page](int number) -> RunAppData& { return *page.applications[size_t(number - 1)]; };
        const auto child = [&suite](int number) { return suite.read(u"tool%1.pid"_s.arg(number)); };
        tool(1).button->click();
        QVERIFY(!tool(2).button->isEnabled());
        QTRY_VERIFY(!child(1).isEmpty());
        const BoxAnswers boxes({QMessageBox::Ok});
        tool(1).button->click();
        QCOMPARE(boxes.texts, QStringList{u"Tool 1|This application is already running"_s});
        tool(2).Activate();
        QTRY_COMPARE(appRegistry->openDialogs.size(), 1);
        QVERIFY(page.ApplicationsRunning() && appRegistry->openDialogs[0]->isVisible());
        page.ResetApplications();
        QVERIFY(!appRegistry->openDialogs[0]->isVisible() && tool(2).button->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(!tool(1).isRunning() && !Installation::isAlive(child(1)), 8000);
        QCOMPARE(boxes.texts.size(), 1);

        // One that listens, with a child that does not, stopped by the window that locks the wizard.
        tool(3).button->click();
        QTRY_VERIFY(!child(3).isEmpty());
        const auto busy = [] { return qobject_cast<BusyDialog*>(QApplication::activeWindow()); };
        QTRY_VERIFY(busy());
        QVERIFY(QApplication::overrideCursor());
        busy()->reject();
        QTRY_VERIFY(!tool(3).isRunning() && !Installation::isAlive(child(3)));
        QVERIFY(boxes.texts.size() == 1 && !QApplication::overrideCursor());

        // What a tool leaves behind stays for the user, but not longer than the program, wherever it went.
        for (const int number : {4, 5}) {
            tool(number).Activate();
            QTRY_VERIFY(!tool(number).isRunning() && !child(number).isEmpty());
        }
        QVERIFY(Installation::isAlive(child(4)) && Installation::isAlive(child(5)) && page.ProgramsRunning());
        appRegistry->ShutDown();
        QVERIFY(!Installation::isAlive(child(4)) && !Installation::isAlive(child(5)) && !page.ProgramsRunning());
    }
};

KOVRA_TEST(LauncherTest)
#include "LauncherTest.moc"

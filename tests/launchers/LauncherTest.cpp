// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "dialogs/BusyDialog.h"
#include "Installation.h"
#include "launchers/LauncherGrid.h"
#include "launchers/PageData.h"
#include "launchers/RunAppData.h"
#include "personality/AnalyserInference.h"
#include "process/ExecutableLookup.h"
#include "process/StrayProcesses.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextBrowser>

#include <csignal>
#include <memory>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

// A child that says who it is and does not listen.
const QByteArray deaf = "sh -c 'trap \"\" TERM; echo $$ > \"$0\"; while :; do sleep 1; done' \"$0.pid\" &\n";

/// A launcher page with buttons, on a project that does not exist.
struct Launchers : Installation
{
    PageData& define(const QByteArray& applications)
    {
        Installation::define("<applicationPage>" + applications + "</applicationPage>");
        start().values.useMessageViewerMessages = false;
        page().SetProjectFile(path(u"work/p.prj"_s));
        holder = std::make_unique<QWidget>();
        page().BuildButtons(new QGridLayout(holder.get()));
        return page();
    }

    static PageData& page() { return *appRegistry->definitions.applicationPages.at(0); }

    /// The process whose id a tool's script wrote.
    QByteArray child(int number) const { return read(u"tool%1.pid"_s.arg(number)); }

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
                %PF</exeargs><columnspan>4</columnspan><rowspan>2</rowspan><displayoutput>text</displayoutput><displayoutput>pdf</displayoutput>
              <leftimage>arrow</leftimage><runFromExeDir>1</runFromExeDir><runFromExeDir>0</runFromExeDir></application>
            <application name="R"><exe>sh</exe><description>&lt;b&gt;</description><colour>nonsense</colour>
              <condition name="G" action="disable"/><condition name="G" action="enable"/></application>
            <application><exe TYPE="ORVC">sh</exe></application>)");
        RunAppData& first = *page.applications.at(0);
        const RunAppData& second = *page.applications.at(1);
        QCOMPARE(page.applications.size(), size_t(3));
        QCOMPARE(page.columns, 4);
        QCOMPARE(first.name, u"A\nB"_s);
        QCOMPARE(first.exeargs, (QStringList{QString(), u"%PF"_s}));
        QCOMPARE(first.displayMode, int(NoDisplay));
        QVERIFY(first.busyCursor);
        QVERIFY(first.runFromExeDir);
        // An arrow column lies between two button columns, so each of three steps brings its gap twice.
        QCOMPARE(first.button->size(), QSize(4 * 180 + 3 * 2 * 2, 2 * 50 + 2));
        QCOMPARE(second.button->size(), QSize(180, 50));
        // The bin folder answers the empty name of the other analyser's program, the dependency is missing.
        QCOMPARE(first.button->toolTip(), u"Disabled, could not locate required executables: no such program"_s);
        const auto arrows = first.button->parentWidget()->findChildren<QLabel*>();
        QVERIFY(!first.button->isEnabled());
        QCOMPARE(arrows.size(), 1);
        const QImage arrow = arrows[0]->pixmap().toImage();
        QCOMPARE(arrow.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(arrow.pixelColor(arrow.width() / 4, arrow.height() / 2), QColor(Qt::black));
        QVERIFY(second.startsDisabled);
        QVERIFY2(second.button->toolTip().contains("&lt;b"_L1), qPrintable(second.button->toolTip()));
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
        if (script == "gone") {
            QVERIFY(QFile::remove(tool.cppExe));
        } else if (script == "locked") {
            QVERIFY(QFile::setPermissions(tool.cppExe, QFile::ReadOwner));
        }
        tool.button->click();
        QCOMPARE(tool.button->text(), starts ? u"Tool 1\nrunning..."_s : u"Tool\n1"_s);
        QTRY_VERIFY(!tool.isRunning());
        QTRY_COMPARE(tool.button->text(), u"Tool\n1"_s);
        QTRY_COMPARE(boxes.texts, box);
        QCoreApplication::processEvents();
        QCOMPARE(boxes.texts, box);
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(next.isEnabled(), box.isEmpty());
        QCOMPARE(next.toolTip().isEmpty(), box.isEmpty());
        const QDialog* window = appRegistry->openDialogs.value(0);
        QCOMPARE(window ? window->findChild<QPlainTextEdit*>()->toPlainText() : QString(),
                 box.isEmpty() ? says : QString());
        // The end of the road shows the way: what ran, and what it said.
        const QString details = boxes.details.value(0);
        QCOMPARE(details.contains(tool.cppExe), !box.isEmpty());
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
        QVERIFY(!page.applications[0]->isRunning());
        QVERIFY(!QFile::exists(suite.path(u"tool1.ran"_s)));
    }

    void showsTheBeginningOfAFlood_data()
    {
        const TestRows<QByteArray> row("mode");
        row("text", "text");
        row("html", "html");
        row("message", "message");
    }

    void showsTheBeginningOfAFlood()
    {
        QFETCH(const QByteArray, mode);
        Launchers suite;
        const PageData& page = suite.define(suite.application(1, "yes '<p>word</p>' | head -c 100000000",
                                                              "<displayoutput>" + mode + "</displayoutput>"));
        page.applications[0]->button->click();
        QTRY_COMPARE_WITH_TIMEOUT(appRegistry->openDialogs.size(), 1, 60000);
        const QDialog& dialog = *appRegistry->openDialogs[0];
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
        // Nothing stays behind, neither of this nor of the option and list files.
        appRegistry->ShutDown();
        QCOMPARE(QDir(QDir::tempPath()).entryList({u"KOVRA-*"_s}), QStringList());
    }

    void givesTheToolItsPlaceAndItsMessages_data()
    {
        const TestRows<ProjectType, QByteArray> row("project", "messages");
        row("C", ProjectType::C, "-only 7");
        row("C++", ProjectType::Cpp, "-only 8");
    }

    void givesTheToolItsPlaceAndItsMessages()
    {
        QFETCH(const ProjectType, project);
        QFETCH(const QByteArray, messages);
        Launchers suite;
        PageData& page = suite.define(
            suite.application(1, "pwd > \"$0.out\"; echo \"$ORVCPPPATH\" >> \"$0.out\"; tail -n 1 \"$4\" >> \"$0.out\"",
                              "<runFromExeDir>1</runFromExeDir><exeargs>%P+</exeargs>"));
        appRegistry->values.useMessageViewerMessages = true;
        appRegistry->values.cMessages = {u"7"_s};
        appRegistry->values.cppMessages = {u"8"_s};
        // The list is chosen by the suite's current project.
        appRegistry->values.project.projectType = project;
        page.applications[0]->button->click();
        QTRY_VERIFY(!page.applications[0]->isRunning());
        QCOMPARE(suite.read(u"tool1.out"_s), suite.path(u"."_s).chopped(2).toUtf8() + '\n' +
                                                 suite.path(u"orvcpp"_s).toUtf8() + '\n' + messages + '\n');
    }

    void stopsAllWhenItsPageIsReset()
    {
        Launchers suite;
        const PageData& page = suite.define(
            suite.application(1, "trap '' TERM\n" + deaf + "wait\n", "<condition name='G' action='finish'/>") +
            suite.application(2, "echo hello",
                              "<displayoutput>message</displayoutput><condition name='G' action='disable'/>"));
        RunAppData& tool = *page.applications[0];
        RunAppData& other = *page.applications[1];
        tool.button->click();
        QVERIFY(!other.button->isEnabled());
        QTRY_VERIFY(!suite.child(1).isEmpty());
        const BoxAnswers boxes({QMessageBox::Ok});
        tool.button->click();
        QCOMPARE(boxes.texts, QStringList{u"Tool 1|This application is already running"_s});
        other.Activate();
        QTRY_COMPARE(appRegistry->openDialogs.size(), 1);
        const QDialog& window = *appRegistry->openDialogs[0];
        QVERIFY(window.isVisible());
        QVERIFY(page.ApplicationsRunning());
        suite.page().ResetApplications();
        QVERIFY(!window.isVisible());
        QVERIFY(other.button->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(!tool.isRunning(), 8000);
        QTRY_VERIFY(!Installation::isAlive(suite.child(1)));
        QCOMPARE(boxes.texts.size(), 1);
    }

    // One that listens, with a child that does not.
    void stopsFromTheWindowThatLocksTheWizard()
    {
        Launchers suite;
        const PageData& page =
            suite.define(suite.application(1, deaf + "wait\n", "<displayoutput>cursor</displayoutput>"));
        const RunAppData& tool = *page.applications[0];
        const BoxAnswers boxes({});
        tool.button->click();
        QTRY_VERIFY(!suite.child(1).isEmpty());
        const auto busy = [] { return qobject_cast<BusyDialog*>(QApplication::activeWindow()); };
        QTRY_VERIFY(busy());
        QVERIFY(QApplication::overrideCursor());
        busy()->reject();
        QTRY_VERIFY(!tool.isRunning());
        QTRY_VERIFY(!Installation::isAlive(suite.child(1)));
        QCOMPARE(boxes.texts, QStringList());
        QVERIFY(!QApplication::overrideCursor());
    }

    void endsWhatItLeftBehind_data()
    {
        const TestRows<QByteArray, bool> row("script", "counts");
        row("detached", "setsid " + deaf, false);
        row("in the background", "sleep 1000 & echo $! > \"$0.pid\"", true);
    }

    // It stays for the user, but not longer than the program, wherever it went.
    void endsWhatItLeftBehind()
    {
        QFETCH(const QByteArray, script);
        Launchers suite;
        const PageData& page = suite.define(suite.application(1, script));
        StrayProcesses::adopt();
        page.applications[0]->Activate();
        QTRY_VERIFY(!page.applications[0]->isRunning());
        QTRY_VERIFY(!suite.child(1).isEmpty());
        QVERIFY(Installation::isAlive(suite.child(1)));
        QTEST(page.ProgramsRunning(), "counts");
        appRegistry->ShutDown();
        QVERIFY(!Installation::isAlive(suite.child(1)));
        QVERIFY(!page.ProgramsRunning());
    }
};

KOVRA_TEST(LauncherTest)
#include "LauncherTest.moc"

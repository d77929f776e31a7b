// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "dialogs/BusyDialog.h"
#include "Installation.h"
#include "process/ExecutableLookup.h"
#include "process/RunAppData.h"
#include "process/StrayProcesses.h"
#include "TestMain.h"
#include "wizard/LauncherGrid.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// A launcher page with buttons, on a project that does not exist.
class Launchers : public Installation
{
public:
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

private:
    std::unique_ptr<QWidget> holder;
};

} // namespace

class LauncherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesButtons_data()
    {
        QTest::addColumn<QList<int>>("spans");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QString>("cells");
        QTest::newRow("row by row") << QList<int>{1, 1, 1, 1} << 3 << u"1,1 1,3 1,5 3,1"_s;
        QTest::newRow("back to the row's start") << QList<int>{2, 2, 1} << 3 << u"1,1 1,1 1,5"_s;
        QTest::newRow("zero is one") << QList<int>{0, 3} << 3 << u"1,1 1,1"_s;
        QTest::newRow("nonsense") << QList<int>{-1, 900000000, 1} << 100 << u"1,1 1,1 3,1"_s;
    }

    void placesButtons()
    {
        QFETCH(const QList<int>, spans);
        QFETCH(const int, columns);
        QFETCH(const QString, cells);
        QList<LauncherSpan> launchers;
        for (const int span : spans) {
            launchers += {span, 1};
        }
        QStringList placed;
        for (const LauncherCell& cell : placeLaunchers(launchers, columns)) {
            placed += u"%1,%2"_s.arg(cell.row).arg(cell.column);
        }
        QCOMPARE(placed.join(u' '), cells);
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
        QCOMPARE(page.applications.size(), size_t(3));
        QCOMPARE(page.columns, 4);
        const RunAppData& first = *page.applications[0];
        QCOMPARE(first.name, u"A\nB"_s);
        QVERIFY(first.cExe == "missing/c"_L1 && first.cppExe.isEmpty() && first.runFromExeDir);
        QCOMPARE(first.exeargs, (QStringList{QString(), u"%PF"_s}));
        QVERIFY(first.displayMode == RunAppData::NoDisplay && first.busyCursor);
        // The bin folder answers the empty name of the other analyser's program, the dependency is missing.
        QCOMPARE(first.button->toolTip(), u"Disabled, could not locate required executables: no such program"_s);
        QVERIFY(!first.button->isEnabled());
        const auto arrows = first.button->parentWidget()->findChildren<QLabel*>();
        QVERIFY(arrows.size() == 1 && !arrows[0]->pixmap().isNull());
        QVERIFY(page.applications[1]->startsDisabled && page.applications[1]->button->toolTip().contains("&lt;b"_L1));
        QVERIFY(!page.applications[2]->button);
        page.SetIsORVC(true);
        QVERIFY(!page.applications[0]->ExecutablesFound());
        QCOMPARE(page.applications[0]->disabledReason,
                 u"Disabled, could not locate required executables: missing/c,no such program"_s);
    }

    void looksProgramsUp()
    {
        Installation suite;
        suite.start();
        const QString tool = suite.writeScript(u"orvcpp/bin/onlyhere"_s, "");
        QCOMPARE(FindExecutable(u"onlyhere"_s), tool);
        QCOMPARE(FindExecutable(tool), tool);
        QVERIFY(FindExecutable(u"sh"_s).endsWith("/sh"_L1));
        QCOMPARE(FindExecutable(QString()), suite.path(u"bin"_s));
        QVERIFY(FindExecutable(u"no such program"_s).isEmpty());
    }

    void reportsEachEnd_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("succeeds");
        QTest::newRow("no output wanted")
            << QByteArray("yes | head -c 3000000") << QByteArray("none") << QString() << QString() << true;
        QTest::newRow("text") << QByteArray("printf 'a <b>\\377'; echo e >&2") << QByteArray("text") << QString()
                              << u"a <b>\uFFFD"_s << true;
        QTest::newRow("empty") << QByteArray("exit 0") << QByteArray("text") << u"No data returned from process"_s
                               << QString() << false;
        QTest::newRow("failed") << QByteArray("echo reason >&2; exit 3") << QByteArray("text")
                                << u"Process Failed [3]"_s << QString() << false;
        QTest::newRow("not executable") << QByteArray() << QByteArray("cursor") << u"Failed to Start"_s << QString()
                                        << false;
        QTest::newRow("crashed") << QByteArray("kill -SEGV $$") << QByteArray("none") << u"Process Crashed"_s
                                 << QString() << false;
        QTest::newRow("closes its output early")
            << QByteArray("exec >&- 2>&-; sleep 0.1") << QByteArray("cursor") << QString() << QString() << true;
    }

    void reportsEachEnd()
    {
        QFETCH(const QByteArray, script);
        QFETCH(const QByteArray, output);
        QFETCH(const QString, box);
        QFETCH(const QString, shown);
        QFETCH(const bool, succeeds);
        Launchers suite;
        const PageData& page = suite.define(
            suite.application(1, script,
                              "<displayoutput>" + output + "</displayoutput><condition name='G' action='start'/>") +
            suite.application(2, "", "<condition name='G' action='enable'/>"));
        RunAppData& tool = *page.applications[0];
        const BoxAnswers boxes({QMessageBox::Ok});
        const QPushButton& next = *page.applications[1]->button;
        QVERIFY(!next.isEnabled());
        QCOMPARE(next.toolTip(), u"Available once this has succeeded: Tool 1"_s);
        if (script.isEmpty()) {
            QFile::setPermissions(tool.cppExe, QFile::ReadOwner);
        }
        tool.button->click();
        QVERIFY(script.isEmpty() || tool.button->text() == "Tool 1\nrunning..."_L1);
        QTRY_VERIFY(!tool.isRunning() && !tool.button->text().contains("running"_L1));
        QTRY_COMPARE(boxes.texts, box.isEmpty() ? QStringList{} : QStringList{u"Tool 1|"_s + box});
        QCOMPARE(page.applications[1]->button->isEnabled(), succeeds);
        QCOMPARE(appRegistry->openDialogs.size(), shown.isEmpty() ? 0 : 1);
        if (!shown.isEmpty()) {
            QCOMPARE(appRegistry->openDialogs[0]->findChild<QPlainTextEdit*>()->toPlainText(), shown);
        }
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(next.toolTip().isEmpty(), succeeds);
        if (!box.isEmpty()) {
            // The end of the road shows the way: what ran, and what it said.
            const QString& details = boxes.details[0];
            QVERIFY2(box.startsWith("No data"_L1) || details.contains(tool.cppExe), qPrintable(details));
            QCOMPARE(details.contains("reason"_L1), script.contains("reason"));
        }
    }

    void startFailsOnce()
    {
        Launchers suite;
        const PageData& page = suite.define(suite.application(1, "exit 0", "<displayoutput>cursor</displayoutput>"));
        RunAppData& tool = *page.applications[0];
        // It was there when the button was made.
        QFile::remove(tool.cppExe);
        const BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        tool.button->click();
        QCoreApplication::processEvents();
        QCOMPARE(boxes.texts, QStringList{u"Tool 1|Failed to Start"_s});
        QVERIFY(!QApplication::overrideCursor());
    }

    void nothingStartsWithoutItsFiles_data()
    {
        QTest::addColumn<bool>("full");
        QTest::newRow("no folder") << false;
        QTest::newRow("full") << true;
    }

    void nothingStartsWithoutItsFiles()
    {
        QFETCH(const bool, full);
        Launchers suite;
        const PageData& page = suite.define(suite.application(1, "touch \"$0.ran\""));
        const QByteArray folder = qgetenv("TMPDIR");
        rlimit old = {};
        ::getrlimit(RLIMIT_FSIZE, &old);
        if (full) {
            // As on a full disk, files can be made but not written.
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit none = {0, old.rlim_max};
            ::setrlimit(RLIMIT_FSIZE, &none);
        } else {
            qputenv("TMPDIR", suite.write(u"work/file"_s, "").toLocal8Bit());
        }
        const BoxAnswers boxes({QMessageBox::Ok});
        page.applications[0]->button->click();
        ::setrlimit(RLIMIT_FSIZE, &old);
        qputenv("TMPDIR", folder);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY2(boxes.texts[0].contains(full ? " can not be written: "_L1 : "A temporary file can not be made in "_L1),
                 qPrintable(boxes.texts[0]));
        QVERIFY(!page.applications[0]->isRunning() && !QFile::exists(suite.path(u"tool1.ran"_s)));
    }

    void showsTheBeginningOfAFlood_data()
    {
        QTest::addColumn<QByteArray>("mode");
        QTest::newRow("text") << QByteArray("text");
        QTest::newRow("html") << QByteArray("html");
        QTest::newRow("message") << QByteArray("message");
    }

    void showsTheBeginningOfAFlood()
    {
        QFETCH(const QByteArray, mode);
        Launchers suite;
        const PageData& page = suite.define(suite.application(1, "yes '<p>word</p>' | head -c 100000000",
                                                              "<displayoutput>" + mode + "</displayoutput>"));
        page.applications[0]->button->click();
        QTRY_COMPARE_WITH_TIMEOUT(appRegistry->openDialogs.size(), 1, 60000);
        const QStringList files = QDir(QDir::tempPath()).entryList({u"KOVRA-*"_s});
        const auto isWhole = [](const QString& name) {
            return QFileInfo(QDir::tempPath() + u'/' + name).size() == 100000000;
        };
        const auto whole = std::ranges::find_if(files, isWhole);
        QVERIFY(whole != files.end());
        const QDialog& dialog = *appRegistry->openDialogs[0];
        const auto shows = [&] {
            const auto* text = dialog.findChild<QPlainTextEdit*>();
            const auto* browser = dialog.findChild<QTextBrowser*>();
            const QString shown = text      ? text->document()->lastBlock().text()
                                  : browser ? browser->document()->lastBlock().text()
                                            : dialog.findChild<QLabel*>()->text();
            return shown.contains(*whole);
        };
        QTRY_VERIFY_WITH_TIMEOUT(shows(), 30000);
        // Nothing stays behind, neither of this nor of the option and list files.
        appRegistry->ShutDown();
        QCOMPARE(QDir(QDir::tempPath()).entryList({u"KOVRA-*"_s}), QStringList());
    }

    void givesTheToolItsPlaceAndItsMessages()
    {
        Launchers suite;
        PageData& page = suite.define(
            suite.application(1, "pwd > \"$0.out\"; echo \"$ORVCPPPATH\" >> \"$0.out\"; cat \"$4\" >> \"$0.out\"",
                              "<runFromExeDir>1</runFromExeDir><exeargs>%P+</exeargs>"));
        appRegistry->values.useMessageViewerMessages = true;
        appRegistry->values.cMessages = {u"7"_s};
        appRegistry->values.cppMessages = {u"8"_s};
        for (const bool isC : {true, false}) {
            // The list is chosen by the suite's current project.
            appRegistry->values.project.projectType = isC ? ProjectType::C : ProjectType::Cpp;
            page.applications[0]->button->click();
            QTRY_VERIFY(!page.applications[0]->isRunning());
            const QByteArray said = suite.read(u"tool1.out"_s);
            QVERIFY2(said.startsWith(suite.path(u"."_s).chopped(2).toUtf8() + '\n' + suite.path(u"orvcpp"_s).toUtf8()),
                     said.constData());
            QVERIFY2(said.endsWith(isC ? "-only 7\n" : "-only 8\n"), said.constData());
        }
    }

    void stopsWhatItStarted()
    {
        Launchers suite;
        PageData& page = suite.define(
            suite.application(1,
                              "trap '' TERM\nsh -c 'trap \"\" TERM; echo $$ > \"$0\"; while :; do sleep 1; done' "
                              "\"$0.pid\" &\nwait\n",
                              "<condition name='G' action='finish'/>") +
            suite.application(2, "echo hello",
                              "<displayoutput>message</displayoutput><condition name='G' action='disable'/>") +
            suite.application(3, "sleep 1000 & echo $! > \"$0.pid\"") +
            suite.application(
                4, "sh -c 'trap \"\" TERM; echo $$ > \"$0\"; while :; do sleep 1; done' \"$0.pid\" &\nwait\n",
                "<displayoutput>cursor</displayoutput>") +
            suite.application(
                5, "setsid sh -c 'trap \"\" TERM; echo $$ > \"$0\"; while :; do sleep 1; done' \"$0.pid\" &"));
        StrayProcesses::adopt();
        RunAppData& tool = *page.applications[0];
        tool.button->click();
        QVERIFY(!page.applications[1]->button->isEnabled());
        QByteArray child;
        QTRY_VERIFY(!(child = suite.read(u"tool1.pid"_s)).isEmpty());
        {
            const BoxAnswers boxes({QMessageBox::Ok});
            tool.button->click();
            QCOMPARE(boxes.texts, QStringList{u"Tool 1|This application is already running"_s});
        }
        page.applications[1]->Activate();
        QTRY_COMPARE(appRegistry->openDialogs.size(), 1);
        QVERIFY(page.ApplicationsRunning() && appRegistry->openDialogs[0]->isVisible());
        const BoxAnswers none({});
        page.ResetApplications();
        QVERIFY(!appRegistry->openDialogs[0]->isVisible() && page.applications[1]->button->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(!tool.isRunning() && !Installation::isAlive(child), 8000);
        QVERIFY(none.texts.isEmpty());

        // One that listens, with a child that does not, stopped by the window that locks the wizard.
        page.applications[3]->button->click();
        QTRY_VERIFY(!(child = suite.read(u"tool4.pid"_s)).isEmpty());
        const auto busy = [] { return qobject_cast<BusyDialog*>(QApplication::activeWindow()); };
        QTRY_VERIFY(busy());
        QVERIFY(QApplication::overrideCursor());
        busy()->reject();
        QTRY_VERIFY(!page.applications[3]->isRunning() && !Installation::isAlive(child));
        QVERIFY(none.texts.isEmpty() && !QApplication::overrideCursor());

        // What a tool leaves behind stays for the user, but not longer than the program, wherever it went.
        page.applications[4]->Activate();
        QByteArray daemon;
        QTRY_VERIFY(!page.applications[4]->isRunning() && !(daemon = suite.read(u"tool5.pid"_s)).isEmpty());
        page.applications[2]->Activate();
        QTRY_VERIFY(!page.applications[2]->isRunning() && !(child = suite.read(u"tool3.pid"_s)).isEmpty());
        QVERIFY(Installation::isAlive(child) && Installation::isAlive(daemon) && page.ProgramsRunning());
        appRegistry->ShutDown();
        QVERIFY(!Installation::isAlive(child) && !Installation::isAlive(daemon) && !page.ProgramsRunning());
    }
};

KOVRA_TEST(LauncherTest)
#include "LauncherTest.moc"

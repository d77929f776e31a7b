// SPDX-License-Identifier: MIT
#include "Launchers.h"
#include "launchers/LauncherGrid.h"
#include "personality/AnalyserInference.h"
#include "process/ExecutableLookup.h"
#include "process/StrayProcesses.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QImage>

using namespace Qt::StringLiterals;

namespace {

// A child that says who it is and does not listen.
constexpr auto deaf = "{ ignore-requests; mark $0.pid; hang }\n";

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
        suite.writeChild(u"bin/there"_s, "");
        PageData& page = suite.define(R"(<columns>3</columns>
            <application name="A\nB"><exe TYPE="ORVC">missing/c</exe><dependency>no such program</dependency>
              <exeargs>
                %PF</exeargs><columnspan>4</columnspan><rowspan>2</rowspan><displayoutput>text</displayoutput><displayoutput>pdf</displayoutput>
              <leftimage>arrow</leftimage><runFromExeDir>1</runFromExeDir><runFromExeDir>0</runFromExeDir></application>
            <application name="R"><exe>there</exe><description>&lt;b&gt;</description><colour>nonsense</colour>
              <condition name="G" action="disable"/><condition name="G" action="enable"/></application>
            <application><exe TYPE="ORVC">there</exe></application>)");
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
        QCOMPARE(first.disabledReason, u"Disabled, could not locate required executables: %1,no such program"_s.arg(
                                           QDir::toNativeSeparators(u"missing/c"_s)));
    }

    void looksProgramsUp()
    {
        Installation suite;
        suite.start();
        const QString tool = suite.writeChild(u"orvcpp/bin/onlyhere"_s, "");
        QCOMPARE(FindExecutable(u"onlyhere"_s, appRegistry->executableFolders()), tool);
        qputenv("PATH", suite.path(u"elsewhere"_s).toLocal8Bit());
        QCOMPARE(FindExecutable(u"inpath"_s, {}), suite.writeChild(u"elsewhere/inpath"_s, ""));
    }

    void onlySuccessEnablesTheNext_data()
    {
        const TestRows<QByteArray, QStringList> row("script", "boxes");
        row("success", "print text", {});
        row("failure", "print-error reason; exit 3", {u"Tool 1|Process Failed [3]"_s});
        row("failed start", {}, {u"Tool 1|Failed to Start"_s});
    }

    void onlySuccessEnablesTheNext()
    {
        const auto [script, boxes] = fetched<QByteArray, QStringList>("script", "boxes");
        Launchers suite;
        const PageData& page = suite.define(
            suite.application(1, script, "<displayoutput>text</displayoutput><condition name='G' action='start'/>") +
            suite.application(2, "", "<condition name='G' action='enable'/>"));
        RunAppData& tool = *page.applications[0];
        const QPushButton& next = *page.applications[1]->button;
        const BoxAnswers answers({QMessageBox::Ok});
        QVERIFY(!next.isEnabled());
        QCOMPARE(next.toolTip(), u"Available once this has succeeded: Tool 1"_s);
        // When its button was made, it could be run.
        QVERIFY(!script.isEmpty() || QFile::remove(tool.cppExe));
        tool.button->click();
        QCOMPARE(tool.button->text(), script.isEmpty() ? u"Tool\n1"_s : u"Tool 1\nrunning..."_s);
        QTRY_COMPARE(tool.button->text(), u"Tool\n1"_s);
        QTRY_COMPARE(answers.texts, boxes);
        QCOMPARE(next.isEnabled(), boxes.isEmpty());
        QCOMPARE(next.toolTip().isEmpty(), boxes.isEmpty());
        QCOMPARE(answers.details.value(0).contains(QDir::toNativeSeparators(tool.cppExe)), !boxes.isEmpty());
    }

    void nothingStartsWithoutItsFiles()
    {
        Launchers suite;
        const PageData& page = suite.define(suite.application(1, "write $0.ran"));
        const BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        {
            const NoTemporaryFolder none(suite);
            page.applications[0]->button->click();
        }
        QVERIFY2(boxes.texts.value(0).contains("A temporary file can not be made in "_L1), qPrintable(boxes.texts[0]));
#ifdef Q_OS_UNIX
        // As on a full disk, files can be made but not written.
        {
            const FullDisk none;
            page.applications[0]->button->click();
        }
        QVERIFY2(boxes.texts.value(1).contains(" can not be written: "_L1), qPrintable(boxes.texts.value(1)));
#endif
        QVERIFY(!page.applications[0]->isRunning());
        QVERIFY(!QFile::exists(suite.path(u"tool1.ran"_s)));
    }

    void showsTheBeginningOfAFlood()
    {
        for (const char* mode : {"text", "html", "message"}) {
            Launchers suite;
            const PageData& page = suite.define(suite.application(
                1, "flood 100000000 <p>word</p>", QByteArray("<displayoutput>") + mode + "</displayoutput>"));
            page.applications[0]->button->click();
            QTRY_COMPARE_WITH_TIMEOUT(appRegistry->openDialogs.size(), 1, 60000);
            // Its end names the file that holds everything.
            const auto keptBytes = [] { return QFileInfo(Launchers::shown().section(u' ', -1).remove(u']')).size(); };
            QTRY_COMPARE_WITH_TIMEOUT(keptBytes(), 100000000, 30000);
            // Nothing stays behind, neither of this nor of the option and list files.
            appRegistry->ShutDown();
            QCOMPARE(QDir(QDir::tempPath()).entryList({u"KOVRA-*"_s}), QStringList());
        }
    }

    void givesTheToolItsPlaceAndItsMessages()
    {
        for (const auto& [project, messages] : {std::pair{ProjectType::C, "-only 7"}, {ProjectType::Cpp, "-only 8"}}) {
            Launchers suite;
            PageData& page =
                suite.define(suite.application(1, "append $0.out $cwd; append $0.out $ORVCPPPATH; copy $4 $0.list",
                                               "<runFromExeDir>1</runFromExeDir><exeargs>%P+</exeargs>"));
            appRegistry->values.useMessageViewerMessages = true;
            appRegistry->values.cMessages = {u"7"_s};
            appRegistry->values.cppMessages = {u"8"_s};
            // The list is chosen by the suite's current project.
            appRegistry->values.project.projectType = project;
            page.applications[0]->button->click();
            QTRY_VERIFY(!page.applications[0]->isRunning());
            QCOMPARE(QDir::fromNativeSeparators(QString::fromUtf8(suite.read(u"tool1.out"_s))),
                     suite.path(u"."_s).chopped(2) + u'\n' + suite.path(u"orvcpp"_s) + u'\n');
            QCOMPARE(suite.read(u"tool1.list"_s).trimmed().split('\n').constLast(), QByteArray(messages));
        }
    }

    void stopsAllWhenItsPageIsReset()
    {
        Launchers suite;
        const PageData& page = suite.define(
            suite.application(1, QByteArray("ignore-requests; start ") + deaf + "wait\n",
                              "<condition name='G' action='finish'/>") +
            suite.application(2, "print hello",
                              "<displayoutput>message</displayoutput><condition name='G' action='disable'/>"));
        RunAppData& tool = *page.applications[0];
        RunAppData& other = *page.applications[1];
        tool.button->click();
        QVERIFY(!other.button->isEnabled());
        QTRY_VERIFY(!suite.read(u"tool1.pid"_s).isEmpty());
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
        QTRY_VERIFY(!Installation::isAlive(suite.read(u"tool1.pid"_s)));
        QCOMPARE(boxes.texts.size(), 1);
    }

    void endsWhatItLeftBehind_data()
    {
        const TestRows<QByteArray, bool> row("script", "counts");
#ifdef Q_OS_UNIX
        row("detached", QByteArray("start-session ") + deaf, false);
#else
        // A job holds it, too.
        row("detached", QByteArray("start-session ") + deaf, true);
#endif
        row("in the background", "start { mark $0.pid; hang }", true);
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
        QTRY_VERIFY(!suite.read(u"tool1.pid"_s).isEmpty());
        QVERIFY(Installation::isAlive(suite.read(u"tool1.pid"_s)));
        QTEST(page.ProgramsRunning(), "counts");
        appRegistry->ShutDown();
        QVERIFY(!Installation::isAlive(suite.read(u"tool1.pid"_s)));
        QVERIFY(!page.ProgramsRunning());
    }
};

KOVRA_TEST(LauncherTest)
#include "LauncherTest.moc"

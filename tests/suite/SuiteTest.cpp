// SPDX-License-Identifier: MIT
#include "InstalledSuite.h"
#include "personality/FileScans.h"
#include "SystemCalls.h"
#include "TestMain.h"
#include "WizardDriver.h"

#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// Two sources and the database that builds them, which it gives.
QString writeCode(const InstalledSuite& suite)
{
    suite.write(u"work/code/größe a.cpp"_s, "int f()\n{\n    int values[2];\n    return values[INDEX];\n}\n");
    suite.write(u"work/code/lib/b.cpp"_s, "int g() { return 0; }\n");
    return suite.write(u"work/db.json"_s,
                       R"([{"file": "code/größe a.cpp", "arguments": ["c++", "-DINDEX=7", "-Ian include"]},
            {"file": "code/lib/b.cpp", "arguments": ["c++", "-DINDEX=7", "-Ian include"]}])");
}

void verifyProject(const InstalledSuite& suite)
{
    const QByteArray written =
        suite.readLines(u"work/new folder/own code.prj"_s) + suite.readLines(u"work/new folder/own code.options.p_a"_s);
    QVERIFY2(written.startsWith("VersionTag"), written);
    for (const QString& lines :
         {u"name=own code\nsourceDir="_s + suite.path(u"work/code"_s), u"*project=ORVCPP\ngröße a.cpp"_s,
          u"messagePersonality="_s + suite.path(u"orvcpp/personalities/default.p_s"_s),
          u"name=lib\nsourceDir="_s + suite.path(u"work/code/lib"_s), u"b.cpp"_s,
          u"-d INDEX=7\n-d DEMO=<1>\n-d SECOND\n-i \""_s + suite.path(u"work/an include"_s) + u"\""_s}) {
        QVERIFY2(written.contains('\n' + lines.toUtf8() + '\n'), written);
    }
}

constexpr auto databaseType = "CMake compile_commands.json"_L1;

} // namespace

class SuiteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { hasAnalyser = !QStandardPaths::findExecutable(u"cppcheck"_s).isEmpty(); }

    void fromABuildToAReport()
    {
        InstalledSuite suite;
        const QString database = writeCode(suite);
        const AppRegistry& registry = suite.start();
        WizardDriver wizard;
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes});
        wizard.passStartPage(u"own code"_s, suite.path(u"work/new folder"_s), databaseType);
        wizard.button(u"Orv C++ [Project contains 'C++' Code]"_s).click();
        wizard.press(QWizard::NextButton);
        QVERIFY(!wizard.canGoOn());
        wizard.edit(u"Compilation database"_s).setText(database);
        wizard.edit(u"More defines"_s).setText(u"DEMO=<1>;SECOND"_s);
        QVERIFY(wizard.has(u"Only C++ sources"_s));
        QVERIFY(!wizard.has(u"Only C sources"_s));
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), int(ConfPageId));
        QVERIFY(wizard.canGoOn());
        wizard.press(QWizard::NextButton);
        QTRY_COMPARE_WITH_TIMEOUT(wizard.window.currentId(), int(DisplayOptionsPageId), 30000);

        verifyProject(suite);
        if (!hasAnalyser) {
            QSKIP("the report needs cppcheck");
        }
        QAbstractButton& results = wizard.button(u"Show results"_s);
        wizard.button(u"Analyse\nproject"_s).click();
        // What the analysis does last.
        QTRY_VERIFY2_WITH_TIMEOUT(suite.read(u"work/new folder/own code.prj"_s).contains("*lastAnalysis=Cppcheck"),
                                  qPrintable((boxes.texts + boxes.details).join(u' ')), 60000);
        QVERIFY(suite.read(u"work/new folder/own code.out/größe a.cpp.err"_s).contains("arrayIndexOutOfBounds"));
        results.click();
        QTRY_COMPARE(registry.openDialogs.size(), 1);
        const QString report = registry.openDialogs[0]->findChild<QTextBrowser*>()->toPlainText();
        QVERIFY2(report.contains(u"größe a.cpp"_s), qPrintable(report));
        QVERIFY2(report.contains("[arrayIndexOutOfBounds]"_L1), qPrintable(report));
        for (const auto& [button, says] : {std::pair{u"Project status"_s, u"Analysis of this project is complete"_s},
                                           std::pair{u"Cross-module analysis"_s, u"[unusedFunction]"_s}}) {
            wizard.button(button).click();
            QTRY_VERIFY(wizard.window.isEnabled());
            const auto* view = registry.openDialogs.last()->findChild<QPlainTextEdit*>();
            QVERIFY2(view, qPrintable(boxes.texts.join(u' ')));
            QVERIFY2(view->toPlainText().contains(says), qPrintable(view->toPlainText()));
        }
        // Open windows count: Finish asks, and closes them when the user agrees.
        wizard.press(QWizard::FinishButton);
        QVERIFY(wizard.window.isVisible());
        QCOMPARE(registry.openDialogs.size(), 3);
        wizard.press(QWizard::FinishButton);
        QVERIFY(!wizard.window.isVisible());
        QCOMPARE(boxes.texts.size(), 3);
        QVERIFY(boxes.texts.last().startsWith("Child Applications Still Running|"_L1));
    }

    void convertsWithoutAWindow()
    {
        const InstalledSuite suite;
        suite.write(u"work/a.c"_s, "");
        suite.write(u"work/b.cpp"_s, "");
        suite.write(u"work/db.json"_s, R"([{"file": "a.c"}, {"file": "b.cpp"}, {"file": "gone.cpp"}])");
        const QString project = suite.nativePath(u"work/batch/p.prj"_s);
        const QString wanted =
            u"-cpp -prj batch/p.prj -type \"%1\" -input \"Compilation database=db.json\" "_s.arg(databaseType);
        ProgramResult result =
            suite.run(wanted + u"-input \"Options/Keep files that do not exist=1\" -input Absolute=yes"_s);
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);
        QVERIFY(result.output.endsWith(u"New project file: "_s + project + u'\n'));
        const QByteArray text = suite.readLines(u"work/batch/p.prj"_s);
        QVERIFY2(text.contains('\n' + suite.path(u"work/gone.cpp"_s).toUtf8() + '\n'), text);

        result = suite.run(wanted);
        QCOMPARE(result.status, 2);
        QVERIFY2(result.errors.contains("-overwrite"_L1), qPrintable(result.errors));
        QCOMPARE(suite.readLines(u"work/batch/p.prj"_s), text);
        QCOMPARE(suite.run(wanted + u"-overwrite"_s).status, 0);
        QVERIFY(suite.readLines(u"work/batch/p.prj"_s) != text);

        // Each analyser gets the sources of its language.
        for (const bool isC : {true, false}) {
            result = suite.run(u"-prj p.prj -overwrite -type \"%1\" -input \"Compilation database=db.json\" %2"_s.arg(
                databaseType, isC ? u"-c"_s : u"-cpp -input \"Only C++ sources=1\""_s));
            QVERIFY2(result.status == 0, qPrintable(result.errors));
            const QByteArray written = suite.read(u"work/p.prj"_s);
            QVERIFY2(written.contains("\na.c\n") == isC, written);
            QVERIFY2(written.contains("\nb.cpp\n") != isC, written);
        }
    }

    void answersWithoutAWindow()
    {
        const InstalledSuite suite;
        suite.write(u"work/one.xml"_s, "<s><projectCreator><name>S</name><orvcProject>1</orvcProject>"
                                       "</projectCreator></s>");
        suite.write(u"work/empty"_s, "");
        const QString target = u"-prj new.prj "_s;
        const QString list = u"-type \"List of files\" -c "_s;
        const QString given = list + u"-input \"File list=one.xml\" "_s;
        const std::tuple<QString, int, QString> rows[] = {
            {u"-list-types --json"_s, 0, u"\"name\": \"Source folder\""_s},
            {u"-list-inputs \"Source folder\" --json"_s, 0, u"\"ORVCPP\": \"cpp;cc;cxx;c++;cp;C;c;cppm;ixx;mpp\""_s},
            {target + u"-type x"_s, 2, u"no conversion type \"x\""_s},
            {target + u"-type \"List of files\""_s, 2, u"-c or -cpp"_s},
            {target + u"-file one.xml -type S -cpp"_s, 2, u"allows only the other analyser"_s},
            {u"-prj new/ "_s + list, 2, u"-prj: new/ can not be the project file"_s},
            {target + list + u"-input Absolute=maybe"_s, 2, u"give it 1 or 0"_s},
            {target + list, 2, u"\"File list\" must name an existing file"_s},
            {target + given + u"-mp /gone.p_s"_s, 2, u"-mp: the configuration file /gone.p_s"_s},
            {u"-list-types -file empty"_s, 2, u"no conversion types"_s},
            {u"-prj one.xml/x/new.prj "_s + given, 1, u"can not be created"_s},
        };
        for (const auto& [command, status, says] : rows) {
            const ProgramResult result = suite.run(command);
            QVERIFY2((status == 0 ? result.output : result.errors).contains(says),
                     qPrintable(command + u": "_s + result.output + result.errors));
            QVERIFY2(result.status == status, qPrintable(command));
            QVERIFY2(!QFile::exists(suite.path(u"work/new.prj"_s)), qPrintable(command));
        }
    }

    void samplesTellTheAnalysersApart()
    {
        InstalledSuite suite;
        suite.start();
        for (const auto& name :
             {u"orvc/personalities/gcc.p_c"_s, u"orvc/personalities/project.p_a"_s,
              u"orvc/personalities/careful/careful.p_a"_s, u"orvc/personalities/critical/critical.p_a"_s,
              u"orvc/personalities/runtime/runtime.p_a"_s, u"orvcpp/personalities/gpp.p_c"_s,
              u"orvcpp/personalities/project.p_a"_s, u"orvcpp/personalities/careful/careful.p_a"_s,
              u"orvcpp/personalities/runtime/runtime.p_a"_s}) {
            const QString file = suite.path(name);
            const bool isC = name.startsWith("orvc/"_L1);
            QVERIFY2(FileScans::isForOtherAnalyser(file, !isC), qPrintable(file));
            QVERIFY2(!FileScans::isForOtherAnalyser(file, isC), qPrintable(file));
        }
    }

    void stopsOnASignal()
    {
        [[maybe_unused]] const OwnConsole console;
        const InstalledSuite suite;
        suite.define(
            "<projectCreator><name>Slow</name><orvcProject>1</orvcProject><exe>" +
            suite.writeChild(u"slow"_s, "start { mark $0.pid; hang }; await $0.pid; write $1 half; hang").toUtf8() +
            "</exe><exeargs>%PF</exeargs></projectCreator>");
        QProcess program;
        program.setWorkingDirectory(suite.path(u"work"_s));
        program.start(suite.program(), u"-batch -prj s.prj -type Slow -c"_s.split(u' '));
        QTRY_COMPARE(suite.read(u"work/s.prj"_s), QByteArray("half\n"));
        ::kill(pid_t(program.processId()), SIGINT);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 1);
        QVERIFY(!QFile::exists(suite.path(u"work/s.prj"_s)));
        const QByteArray child = suite.read(u"slow.pid"_s);
        QVERIFY(!child.isEmpty());
        QTRY_VERIFY(!Installation::isAlive(child));
    }

private:
    bool hasAnalyser = false;
};

KOVRA_TEST(SuiteTest)
#include "SuiteTest.moc"

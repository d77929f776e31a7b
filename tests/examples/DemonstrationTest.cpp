// SPDX-License-Identifier: MIT
#include "../wizard/WizardDriver.h"
#include "app/AppRegistry.h"
#include "Installation.h"
#include "personality/FileScans.h"
#include "project/Project.h"
#include "TestMain.h"
#include "wizard/PageSequence.h"

#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

struct Result
{
    int status;
    QString output;
    QString errors;
};

/// The demonstration suite, installed by its own script.
class Demonstration : public Installation
{
public:
    Demonstration()
    {
        if (QProcess::execute(QStringLiteral(INSTALL_DEMO),
                              {path(u"."_s), u"--build-dir"_s, QStringLiteral(BUILD_FOLDER)}) != 0) {
            qFatal("the demonstration suite can not be installed");
        }
    }

    /// The program as a user would start it, without a display and a home.
    Result run(const QStringList& arguments) const
    {
        QProcess program;
        prepare(program);
        program.start(path(u"create-project"_s), QStringList{u"-batch"_s} + arguments);
        if (!program.waitForFinished()) {
            return {-1, {}, program.errorString()};
        }
        return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
                QString::fromUtf8(program.readAllStandardError())};
    }

    static void prepare(QProcess& program)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto& name : {u"HOME"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s}) {
            environment.remove(name);
        }
        program.setProcessEnvironment(environment);
    }

    static QString database() { return QStringLiteral(BUILD_FOLDER "/compile_commands.json"); }
};

QString databaseType()
{
    return u"CMake compile_commands.json"_s;
}

} // namespace

class DemonstrationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromNothingToAProjectFile()
    {
        Demonstration suite;
        suite.start();
        WizardDriver wizard;
        const BoxAnswers boxes({QMessageBox::Yes});
        wizard.passStartPage(u"own code"_s, suite.path(u"work/new folder"_s), databaseType());
        QCOMPARE(wizard.window.currentId(), int(SetProductPageId));
        wizard.button(u"Orv C++ [Project contains 'C++' Code]"_s).click();
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QVERIFY(!wizard.canGoOn());
        wizard.edit(u"Compilation database"_s).setText(Demonstration::database());
        wizard.edit(u"More defines"_s).setText(u"DEMO=<1>;SECOND"_s);
        QVERIFY(wizard.has(u"Only C++ sources"_s) && !wizard.has(u"Only C sources"_s));
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), int(ConfPageId));
        QVERIFY(wizard.canGoOn());
        wizard.press(QWizard::NextButton);
        QTRY_COMPARE_WITH_TIMEOUT(wizard.window.currentId(), int(DisplayOptionsPageId), 30000);

        const auto* output = wizard.window.page(ActionPageId)->findChild<QTextBrowser*>();
        QVERIFY2(output->toPlainText().contains("Conversion Complete"_L1), qPrintable(output->toPlainText()));
        const QString project = QString::fromUtf8(suite.read(u"work/new folder/own code.prj"_s));
        QVERIFY(project.startsWith("VersionTag"_L1));
        QVERIFY(project.contains(u"name=own code\nsourceDir="_s + QStringLiteral(SOURCE_FOLDER)));
        QVERIFY(project.contains("*project=ORVCPP\n"_L1));
        QVERIFY(project.contains(u"messagePersonality="_s + suite.path(u"orvcpp/personalities/default.p_s"_s)));
        QVERIFY(project.contains(u"sourceDir="_s + QStringLiteral(SOURCE_FOLDER) + u"/src/app\n"_s));
        QVERIFY(project.contains("\nStartup.cpp\n"_L1));
        const QString options = QString::fromUtf8(suite.read(u"work/new folder/own code.options.p_a"_s));
        QVERIFY(options.contains("-d DEMO=<1>\n-d SECOND\n"_L1));
        QVERIFY(options.contains(u"-i \""_s + QStringLiteral(SOURCE_FOLDER) + u"/src\"\n"_s));
        wizard.press(QWizard::FinishButton);
    }

    void fromABuildToAReport()
    {
        if (QStandardPaths::findExecutable(u"cppcheck"_s).isEmpty()) {
            QSKIP("needs cppcheck");
        }
        Demonstration suite;
        suite.write(u"work/code/größe a.cpp"_s, "int f()\n{\n    int values[2];\n    return values[INDEX];\n}\n");
        suite.write(u"work/code/lib/b.cpp"_s, "int g() { return 0; }\n");
        const QString database =
            suite.write(u"work/db.json"_s, R"([{"file": "code/größe a.cpp", "arguments": ["c++", "-DINDEX=7"]},
                                    {"file": "code/lib/b.cpp", "arguments": ["c++"]}])");
        const AppRegistry& registry = suite.start();
        WizardDriver wizard;
        BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes});
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), databaseType());
        wizard.button(u"Orv C++ [Project contains 'C++' Code]"_s).click();
        wizard.press(QWizard::NextButton);
        wizard.edit(u"Compilation database"_s).setText(database);
        wizard.press(QWizard::NextButton);
        wizard.press(QWizard::NextButton);
        QTRY_COMPARE_WITH_TIMEOUT(wizard.window.currentId(), int(DisplayOptionsPageId), 30000);

        QAbstractButton& results = wizard.button(u"Show results"_s);
        QVERIFY(!results.isEnabled());
        wizard.button(u"Analyse\nproject"_s).click();
        QTRY_VERIFY2_WITH_TIMEOUT(results.isEnabled(), qPrintable(boxes.texts.join(u' ')), 60000);
        QVERIFY(suite.read(u"work/p.out/größe a.cpp.err"_s).contains("arrayIndexOutOfBounds"));
        results.click();
        QTRY_COMPARE(registry.openDialogs.size(), 1);
        const QString report = registry.openDialogs[0]->findChild<QTextBrowser*>()->toPlainText();
        QVERIFY2(report.contains(u"größe a.cpp"_s) && report.contains("[arrayIndexOutOfBounds]"_L1),
                 qPrintable(report));
        for (const auto& [button, says] : {std::pair{u"Project status"_s, u"Analysis of this project is complete"_s},
                                           std::pair{u"Cross-module analysis"_s, u"1  arrayIndexOutOfBounds"_s}}) {
            wizard.button(button).click();
            QTRY_VERIFY(wizard.window.isEnabled());
            const auto* view = registry.openDialogs.last()->findChild<QPlainTextEdit*>();
            QVERIFY2(view && view->toPlainText().contains(says), qPrintable(boxes.texts.join(u' ')));
        }
        // Open windows count: Finish asks, and closes them when the user agrees.
        wizard.press(QWizard::FinishButton);
        QVERIFY(wizard.window.isVisible() && registry.openDialogs.size() == 3);
        wizard.press(QWizard::FinishButton);
        QVERIFY(!wizard.window.isVisible());
        QCOMPARE(boxes.texts.size(), 2);
        QVERIFY(boxes.texts.last().startsWith("Child Applications Still Running|"_L1));
    }

    void analysesAList()
    {
        if (QStandardPaths::findExecutable(u"cppcheck"_s).isEmpty()) {
            QSKIP("needs cppcheck");
        }
        const Demonstration suite;
        const QString source = suite.write(u"work/a%2.cpp"_s, "int f() { int v[2]; return v[7]; }\n");
        const QString out = suite.path(u"work/out"_s);
        const QString list =
            suite.write(u"work/sources.lst"_s, "* a comment\n-outputpath \"" + out.toUtf8() + "\"\n\"" +
                                                   source.toUtf8() + "\"\n-cmaf \"" + out.toUtf8() + "/deep/p\"\n");
        const auto tool = [&](const QString& name, const QStringList& arguments) {
            QProcess process;
            process.start(suite.path(name), arguments);
            process.waitForFinished();
            return std::pair{process.exitCode(), QString::fromUtf8(process.readAll())};
        };
        const QString options = suite.write(u"work/odd.via"_s, "\"\n-d\n");
        QCOMPARE(tool(u"orvcpp/bin/orvcpp"_s, {u"-via"_s, options, u"-list"_s, list}).first, 0);
        QVERIFY(suite.read(u"work/out/a%2.cpp.err"_s).contains("arrayIndexOutOfBounds"));
        QVERIFY(QFile::exists(out + u"/a%2.cpp.met"_s));
        const qsizetype messages = suite.read(u"work/out/a%2.cpp.err"_s).count('\n');
        QCOMPARE(tool(u"bin/orvcount"_s, {u"-list"_s, list}),
                 std::pair(0, u"%1 messages in 1 analysed files"_s.arg(messages)));
        QVERIFY(
            tool(u"bin/orvreport"_s, {u"-list"_s, list}).second.contains(u"/a%2.cpp ("_s + QString::number(messages)));
        QCOMPARE(tool(u"bin/orvcma"_s, {u"-list"_s, list}).first, 0);
        QVERIFY(suite.read(u"work/out/deep/p"_s).contains("arrayIndexOutOfBounds"));
        QVERIFY(tool(u"orvcpp/bin/orvcpp"_s, {}).first != 0);
    }

    void convertsWithoutAWindow()
    {
        const Demonstration suite;
        const QString project = suite.path(u"work/batch/p.prj"_s);
        const QStringList wanted{u"-prj"_s,      project,     u"-type"_s,
                                 databaseType(), u"-input"_s, u"Compilation database="_s + Demonstration::database()};
        Result result =
            suite.run(wanted + QStringList{u"-cpp"_s, u"-input"_s, u"Options/Keep files that do not exist=1"_s,
                                           u"-input"_s, u"Absolute=yes"_s});
        QVERIFY2(result.status == 0, qPrintable(result.errors));
        QVERIFY(result.output.endsWith(u"New project file: "_s + project + u'\n') && result.errors.isEmpty());
        const QByteArray text = suite.read(u"work/batch/p.prj"_s);
        QVERIFY(text.contains("\n" SOURCE_FOLDER "/src/app/Startup.cpp\n"));

        result = suite.run(wanted + QStringList{u"-cpp"_s});
        QCOMPARE(result.status, 2);
        QVERIFY2(result.errors.contains("-overwrite"_L1), qPrintable(result.errors));
        QCOMPARE(suite.read(u"work/batch/p.prj"_s), text);
        QCOMPARE(suite.run(wanted + QStringList{u"-cpp"_s, u"-overwrite"_s}).status, 0);
        QVERIFY(suite.read(u"work/batch/p.prj"_s) != text);
    }

    void leavesTheOtherLanguageOut()
    {
        const Demonstration suite;
        for (const char* name : {"a.c", "b.cpp"}) {
            suite.write(u"work/"_s + QLatin1String(name), "");
        }
        suite.write(u"work/db.json"_s, R"([{"file": "a.c"}, {"file": "b.cpp"}])");
        for (const QString& analyser : {u"-c"_s, u"-cpp"_s}) {
            QStringList arguments{u"-prj"_s, u"p.prj"_s, u"-overwrite"_s, u"-type"_s, databaseType(), analyser};
            arguments += {u"-input"_s, u"Compilation database=db.json"_s};
            if (analyser == "-cpp"_L1) {
                arguments += {u"-input"_s, u"Only C++ sources=1"_s};
            }
            const Result result = suite.run(arguments);
            QVERIFY2(result.status == 0, qPrintable(result.errors));
            const QByteArray project = suite.read(u"work/p.prj"_s);
            QCOMPARE(project.contains("\na.c\n"), analyser == "-c"_L1);
            QCOMPARE(project.contains("\nb.cpp\n"), analyser == "-cpp"_L1);
        }
    }

    void saysWhatIsWrong_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("says");
        const QStringList target{u"-prj"_s, u"new.prj"_s};
        const QStringList list{u"-type"_s, u"List of files"_s, u"-c"_s};
        const auto row = [](const char* name, const QStringList& arguments, int status, const QString& says) {
            QTest::newRow(name) << arguments << status << says;
        };
        row("nothing asked", {}, 2, u"Usage: ProjectCreation -batch"_s);
        row("unknown argument", {u"-what"_s}, 2, u"\"-what\""_s);
        row("value missing", {u"-prj"_s}, 2, u"-prj wants a value"_s);
        row("no project", list, 2, u"-prj <file> is missing"_s);
        row("no type", target, 2, u"-type <name> is missing"_s);
        row("unknown type", target + QStringList{u"-type"_s, u"x"_s}, 2, u"no conversion type \"x\""_s);
        row("analyser open", target + list.first(2), 2, u"-c or -cpp"_s);
        row("unknown input", target + list + QStringList{u"-input"_s, u"x=1"_s}, 2, u"no input \"x\""_s);
        row("no name", QStringList{u"-prj"_s, u"new/"_s} + list, 2, u"-prj: new/ can not be the project file"_s);
        row("two endings", QStringList{u"-prj"_s, u"new.v2.prj"_s} + list, 2, u"it would become "_s);
        row("one of a choice", target + list + QStringList{u"-input"_s, u"Absolute=0"_s}, 2, u"one of a choice"_s);
        row("other analyser's input",
            target + QStringList{u"-type"_s, databaseType(), u"-c"_s, u"-input"_s, u"Only C++ sources=1"_s}, 2,
            u"for the other analyser"_s);
        row("no switch", target + list + QStringList{u"-input"_s, u"Absolute=maybe"_s}, 2, u"give it 1 or 0"_s);
        row("must exist", target + list, 2, u"\"File list\" must name an existing file"_s);
        row("personality missing",
            target + list + QStringList{u"-input"_s, u"File list=/etc/passwd"_s, u"-mp"_s, u"/gone.p_s"_s}, 2,
            u"-mp: the configuration file /gone.p_s"_s);
        row("no definitions", QStringList{u"-list-types"_s, u"-file"_s, u"/dev/null"_s}, 2, u"no conversion types"_s);
        row("conversion fails", target + list + QStringList{u"-input"_s, u"File list=/etc/passwd"_s}, 1,
            u"no source file is left"_s);
        row("folder can not be made",
            QStringList{u"-prj"_s, u"/dev/null/x/new.prj"_s} + list +
                QStringList{u"-input"_s, u"File list=/etc/passwd"_s},
            1, u"can not be created"_s);
    }

    void saysWhatIsWrong()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const int, status);
        QFETCH(const QString, says);
        const Demonstration suite;
        const Result result = suite.run(arguments);
        QVERIFY2(result.errors.contains(says), qPrintable(result.errors));
        QCOMPARE(result.status, status);
        QVERIFY(!QFile::exists(suite.path(u"work/new.prj"_s)));
    }

    void listsWhatThereIs()
    {
        const Demonstration suite;
        QVERIFY(suite.run({u"-list-types"_s}).output.contains("List of files  [ORVC, ORVCPP]\n"_L1));
        QVERIFY(suite.run({u"-list-types"_s, u"--json"_s}).output.contains("\"name\": \"Source folder\""_L1));
        const QString inputs = suite.run({u"-list-inputs"_s, u"Source folder"_s, u"--json"_s}).output;
        QVERIFY2(inputs.contains("\"kind\": \"DIR\""_L1) && inputs.contains("\"ORVCPP\": \"cpp;cc;cxx;c\""_L1),
                 qPrintable(inputs));
    }

    void samplesTellTheAnalysersApart()
    {
        Demonstration suite;
        suite.start();
        for (const bool isC : {true, false}) {
            const QString folder = suite.path(isC ? u"orvc/personalities/"_s : u"orvcpp/personalities/"_s);
            for (const QString& file :
                 {isC ? u"gcc.p_c"_s : u"gpp.p_c"_s, u"project.p_a"_s, u"careful/careful.p_a"_s}) {
                QVERIFY2(FileScans::isForOtherAnalyser(folder + file, !isC), qPrintable(folder + file));
                QVERIFY2(!FileScans::isForOtherAnalyser(folder + file, isC), qPrintable(folder + file));
            }
        }
        const QDir home(QDir::currentPath());
        QVERIFY(QDir::setCurrent(QStringLiteral(SOURCE_FOLDER "/examples/projects")));
        const Project versioned(u"versioned.prj"_s);
        const Project unversioned(u"unversioned.prj"_s);
        QVERIFY(QDir::setCurrent(home.path()));
        QCOMPARE(versioned.statusText,
                 u"This project has not been analysed yet\n   Files in project: 2    Analysed files: 0"_s);
        QCOMPARE(unversioned.statusText, versioned.statusText);
        QVERIFY(!versioned.isCAnalyser() && unversioned.isCAnalyser());
    }

    void stopsOnASignal()
    {
        const Demonstration suite;
        suite.define(
            "<projectCreator><name>Slow</name><orvcProject>1</orvcProject><exe>" +
            suite.writeScript(u"slow"_s, "sleep 1000 & echo $! > \"$0.pid\"; echo half > \"$1\"; wait").toUtf8() +
            "</exe><exeargs>%PF</exeargs></projectCreator>");
        QProcess program;
        Demonstration::prepare(program);
        program.start(suite.path(u"create-project"_s),
                      {u"-batch"_s, u"-prj"_s, u"s.prj"_s, u"-type"_s, u"Slow"_s, u"-c"_s});
        QTRY_COMPARE(suite.read(u"work/s.prj"_s), QByteArray("half\n"));
        ::kill(pid_t(program.processId()), SIGTERM);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 1);
        QVERIFY(!QFile::exists(suite.path(u"work/s.prj"_s)));
        const QByteArray child = suite.read(u"slow.pid"_s);
        QVERIFY(!child.isEmpty());
        QTRY_VERIFY(!Installation::isAlive(child));
    }
};

KOVRA_TEST(DemonstrationTest)
#include "DemonstrationTest.moc"

// SPDX-License-Identifier: MIT
#include "batch/BatchInputs.h"
#include "definitions/KOVRASettingsFile.h"
#include "definitions/Placeholders.h"
#include "Installation.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

QByteArray input(const QByteArray& name, const QByteArray& contents = {})
{
    return "<inputData><displayName>" + name + "</displayName>" + contents + "</inputData>";
}

/// A conversion type with inputs that share names, that hide and that exclude each other.
QByteArray confusingType()
{
    const QByteArray preset = "<defaultValue>1</defaultValue>";
    const QByteArray choice = input("One", R"(<inputType OUT_STR="-1">RADIO</inputType>)" + preset) +
                              input("Two", R"(<inputType OUT_STR="-2">RADIO</inputType>)" + preset);
    const QByteArray texts = input("Name") + input("Twin") + input("Twin");
    return "<s><projectCreator>" + input("Both", "<defaultValue>both</defaultValue>") +
           input("Only", R"(<inputType TYPE="C_ONLY">EDIT</inputType><defaultValue>c</defaultValue>)") +
           input("Only", R"(<inputType TYPE="CPP_ONLY">EDIT</inputType>)") + input("Name") + input("A=B pairs") +
           input("A") + input("Group", R"(<inputType SEP="+">GROUP</inputType>)" + choice) +
           input("Group", "<inputType>GROUP</inputType>" + texts +
                              input("Hidden", R"(<inputType TYPE="CPP_ONLY">CHECK</inputType>)")) +
           "</projectCreator></s>";
}

/// A suite whose conversion goes on until it may end, and the program that runs it without a window.
struct SlowSuite : Installation
{
    SlowSuite()
    {
        const QString script = writeChild(u"slow"_s, "write $1 half; await $0.go");
        define("<projectCreator><name>Slow</name><orvcProject>1</orvcProject><exe>" + script.toUtf8() +
               "</exe><exeargs>%PF</exeargs></projectCreator>");
    }

    QStringList arguments(const QStringList& more = {}) const
    {
        return QStringList{u"-batch"_s, u"-file"_s, path(u"xml/settings.xml"_s), u"-prj"_s, project, u"-type"_s,
                           u"Slow"_s,   u"-c"_s} +
               more;
    }
    bool isHalfWay() const { return read(project) == "half\n"; }

    const QString project = path(u"work/p.prj"_s);
};

} // namespace

/// What the program does without a window.
class BatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheInputThatIsMeant_data()
    {
        const QString presets = u"both|c|||||-2|"_s;
        const TestRows<QString, QString, QString> row("given", "values", "problem");
        row("for both analysers", u"Both=both"_s, presets, {});
        row("namesake of the other analyser", u"Only=x"_s, u"both|x|||||-2|"_s, {});
        row("namesake in a group", u"Name=x"_s, u"both|c||x|||-2|"_s, {});
        row("in a group", u"Group/Name=x"_s, u"both|c|||||-2|x"_s, {});
        row("equals sign in the name", u"A=B pairs=C=D"_s, u"both|c|||C=D||-2|"_s, {});
        row("beside a shorter name", u"A=B pairs="_s, presets, {});
        row("the shorter name", u"A=B=C"_s, u"both|c||||B=C|-2|"_s, {});
        row("equals sign in the value", u"Both=A=B"_s, u"A=B|c|||||-2|"_s, {});
        row("choice", u"One=yes"_s, u"both|c|||||-1|"_s, {});
        row("choice taken back", u"Two=0"_s, presets, u"one of a choice"_s);
        row("hidden", u"Hidden=1"_s, presets, u"for the other analyser"_s);
        row("unknown", u"what=1=2"_s, presets, u"no input \"what\""_s);
        row("ambiguous", u"Twin=1"_s, presets, u"several inputs"_s);
    }

    void findsTheInputThatIsMeant()
    {
        const auto [given, problem] = fetched<QString, QString>("given", "problem");
        KOVRASettingsFile settings;
        settings.readDocument(confusingType(), {});
        const ArgumentDefinitions& definitions = settings.projectCreators.at(0)->inputData;
        BatchInputs inputs(definitions, true);
        const QString said = inputs.set(given).problem;
        QVERIFY2(said.contains(problem), qPrintable(said));
        QCOMPARE(said.isEmpty(), problem.isEmpty());
        QStringList result;
        for (const auto& definition : definitions) {
            result += InputValues::value(*definition, inputs.source());
        }
        QTEST(result.join(u'|'), "values");
    }

    void refusesTheOtherAnalysersFile()
    {
        const SlowSuite suite;
        suite.write(u"slow.go"_s, "");
        const QString foreign = suite.write(u"cpp.p_c"_s, "-rvaluerefbind+\n");
        for (const auto& option : {u"-mp"_s, u"-ap"_s, u"-cp"_s}) {
            const ProgramResult result = runProgram(QStringLiteral(PROGRAM), suite.arguments({option, foreign}));
            QCOMPARE(result.errors, u"ProjectCreation: "_s + option + u": the configuration file "_s + foreign +
                                        u" is for the other analyser\n"_s);
            QCOMPARE(result.status, 2);
        }
    }

    void showsProgressInOneLineOfATerminal_data()
    {
        const TestRows<bool, QString, QStringList, QString> row("atTerminal", "kind", "more", "output");
        const QString clear = u"\r\033[K"_s;
        const QString end = u"New project file: %1\n"_s;
        row("terminal", true, u"xterm"_s, {},
            clear + u"above\n\n"_s + clear + u"[2/3] b\u2026"_s + clear + u"broken off\n"_s + end);
        row("it can not go back", true, u"dumb"_s, {}, u"[1/3] a\nabove\n\n[2/3] bcdefghij\nbroken off"_s + end);
        row("no terminal", false, u"xterm"_s, {}, u"[1/3] a\nabove\n\n[2/3] bcdefghij\nbroken off"_s + end);
        row("quiet", true, u"xterm"_s, {u"-quiet"_s}, {});
    }

    void showsProgressInOneLineOfATerminal()
    {
        const auto [atTerminal, kind, more, output] =
            fetched<bool, QString, QStringList, QString>("atTerminal", "kind", "more", "output");
        const SlowSuite suite;
        suite.write(u"slow.go"_s, "");
        suite.write(u"slow.verbs"_s, "write $1 x; put '[1/3] a\nabove\n\n[2/3] bcdefghij\nbroken off'");
        QStringList words{QStringLiteral(PROGRAM)};
        for (const QString& word : suite.arguments(more)) {
            words += u'\'' + word + u'\'';
        }
        QString command = words.join(u' ');
        if (atTerminal) {
            command = u"script -qec \"stty cols 9; %1\" /dev/null </dev/null"_s.arg(command);
        }
        const ProgramResult result =
            runProgram(u"sh"_s, {u"-c"_s, command},
                       {{u"LC_ALL"_s, u"C.UTF-8"_s}, {u"TERM"_s, kind}, {u"PATH"_s, qEnvironmentVariable("PATH")}});
        QString shown = result.output;
        QCOMPARE(shown.replace(u"\r\n"_s, u"\n"_s), output.contains(u"%1"_s) ? output.arg(suite.project) : output);
        QCOMPARE(result.status, 0);
    }

    void outlivesItsTerminalUnderNohup()
    {
        const SlowSuite suite;
        QProcess program;
        program.start(u"nohup"_s, QStringList{QStringLiteral(PROGRAM)} + suite.arguments());
        QTRY_VERIFY(suite.isHalfWay());
        ::kill(pid_t(program.processId()), SIGHUP);
        suite.write(u"slow.go"_s, "");
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.readAllStandardOutput(), "New project file: " + suite.project.toUtf8() + '\n');
        QCOMPARE(program.exitCode(), 0);
    }
};

KOVRA_TEST(BatchTest)
#include "BatchTest.moc"

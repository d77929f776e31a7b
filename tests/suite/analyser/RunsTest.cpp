// SPDX-License-Identifier: MIT
#include "CodeBase.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// Finds the real analyser, which a stand-in calls for most of its work.
QByteArray realAnalyser()
{
    return "become 1 '" + QStandardPaths::findExecutable(u"cppcheck"_s).toUtf8() + "'\n";
}

#ifdef Q_OS_WIN
constexpr auto crashed = "crashed (0xc0000005)"_L1;
// For consoles there cppcheck changes the letters of what is UTF-8.
constexpr auto complaint = "Gruesse \\303";
#else
constexpr auto crashed = "ended with signal 11"_L1;
constexpr auto complaint = "Gr\xc3\xbc\xc3\x9f"
                           "e \\303";
#endif

QStringList numbered(const QString& pattern, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names += pattern.arg(i);
    }
    return names;
}

} // namespace

/// What a run does again, what it does about obstacles, and how it is stopped.
class RunsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void analysesAgainWhatAChangeConcerns()
    {
        const CodeBase code;
        code.write(u"inc/both.h"_s, "#include \"deep.h\"\n");
        code.write(u"inc/deep.h"_s, "int deep();\n");
        code.write(u"one/a b.cpp"_s, "#include \"both.h\"\nint a() { return deep(); }\n");
        code.write(u"one/c.cpp"_s, "int c() { return 1; }\n");
        code.write(u"two/d.cpp"_s, "#if 0\n#  include \"both.h\"\n#endif\nint d() { return 1; }\n");
        QList<CodePart> parts{{.folder = u"one"_s, .files = {u"a b.cpp"_s, u"c.cpp"_s}, .includeFolders = {u"inc"_s}},
                              {.folder = u"two"_s, .files = {u"d.cpp"_s}, .includeFolders = {u"inc"_s}}};
        code.project(parts);
        const QStringList all{u"one/a b.cpp"_s, u"one/c.cpp"_s, u"two/d.cpp"_s};
        QCOMPARE(code.analyse(), all);
        QCOMPARE(code.analyse(u"-j1 --launcher ninja --time-limit 60"_s), QStringList());
        code.touch(u"inc/deep.h"_s);
        QCOMPARE(code.analyse(), QStringList({u"one/a b.cpp"_s, u"two/d.cpp"_s}));
        code.touch(u"one/c.cpp"_s);
        QCOMPARE(code.analyse(), QStringList(u"one/c.cpp"_s));
        code.touch(u"options/1.p_a"_s);
        QCOMPARE(code.analyse(), QStringList(u"two/d.cpp"_s));
        QFile::remove(code.path(u"out/one/c.cpp.met"_s));
        QCOMPARE(code.analyse(), QStringList(u"one/c.cpp"_s));
        QFile::remove(code.path(u"out/two/d.cpp.err"_s));
        QCOMPARE(code.analyse(), QStringList(u"two/d.cpp"_s));
        QFile::remove(code.path(u"inc/deep.h"_s));
        QCOMPARE(code.analyse(), QStringList({u"one/a b.cpp"_s, u"two/d.cpp"_s}));
        // A header that a build writes concerns those who looked for it.
        code.write(u"inc/deep.h"_s, "int deep();\n");
        QCOMPARE(code.analyse(), QStringList({u"one/a b.cpp"_s, u"two/d.cpp"_s}));
        parts[0].defines = {u"NEW"_s};
        code.project(parts, "-threshold 3\n");
        QCOMPARE(code.analyse(), all);
        code.project(parts, "-threshold 2\n");
        code.write(u"messages.p_s"_s, "-threshold 1\n");
        QCOMPARE(code.run(u"-prj p.prj"_s, u"orvstatus"_s).output.section(u'\n', 0, 0),
                 u"Analysis of this project is out of date"_s);
    }

    void smallSourcesShareAProcess_data()
    {
        const TestRows<QByteArray, int> row("obstacle", "processes");
        row("none", {}, 11);
        row("a crash", "if-told s2.c { if-told s3.c { crash } }", 16);
        row("an unknown message", "if-told s2.c { if-told s3.c { print-error 'x.c:1:1: style: X [x]' } }", 16);
    }

    void smallSourcesShareAProcess()
    {
        QFETCH(const QByteArray, obstacle);
        const CodeBase code;
        code.write(u"one/h.h"_s, "static int h(void) { int w[2]; return w[3]; }\n");
        const CodePart part = code.overrunning(numbered(u"s%1.c"_s, 20), "#include \"h.h\"\n");
        code.write(u"one/s7.c"_s, QByteArray("#error ") + complaint + '\n');
        code.project({part});
        code.replaceProgram(u"cppcheck"_s,
                            "if-told project=units { append $0.starts x; " + obstacle + " }\n" + realAnalyser());
        // One by one, so that they write into one file.
        QCOMPARE(code.analyse(u"-j1"_s).size(), 20);
        QTEST(int(code.read(u"bin/cppcheck.starts"_s).count('\n')), "processes");
        for (int i = 0; i < 20; ++i) {
            const QByteArray found = code.read(u"out/one/s%1.c.err"_s.arg(i));
            QCOMPARE(found.contains("/one/h.h:1:"), i != 7);
            QCOMPARE(found.contains(complaint), i == 7);
            QCOMPARE(QFile::exists(code.path(u"out/one/s%1.c.met"_s.arg(i))), i != 7);
        }
        const QStringList ours = code.messagesOfSources();
        code.restoreProgram(u"cppcheck"_s);
        QCOMPARE(ours, code.messagesByHand({part}));
    }

    void toolsThatFailAreTold_data()
    {
        const TestRows<QByteArray, QString, int> row("analyser", "says", "analysed");
        const auto forA = [](const QByteArray& verbs) {
            return "if-told --version { print Cppcheck 2.10; exit }; if-told project=units { if-told a.cpp { " + verbs +
                   " } }";
        };
        row("too old", "print Cppcheck 1.90", u"is too old: version 2.10"_s, 0);
        row("crashes", forA("crash"), u"the analyser "_s + crashed, 1);
        row("fails", forA("print bad luck; exit 3"), u"status 3: bad luck"_s, 1);
        row("hangs", forA("hang"), u"was stopped after 1 seconds"_s, 1);
    }

    void toolsThatFailAreTold()
    {
        const auto [analyser, says, analysed] = fetched<QByteArray, QString, int>("analyser", "says", "analysed");
        const CodeBase code;
        code.project({code.overrunning({u"a.cpp"_s, u"b.cpp"_s})});
        code.replaceProgram(u"cppcheck"_s, analyser);
        const ProgramResult result = code.run(u"analyse p.prj --time-limit 1"_s);
        QCOMPARE(result.status, 2);
        QVERIFY2((result.output + result.errors).contains(says), qPrintable(result.output + result.errors));
        QCOMPARE(QFile::exists(code.path(u"out/one/b.cpp.met"_s)), analysed == 1);
        QVERIFY(!QFile::exists(code.path(u"out/one/a.cpp.met"_s)));
        if (analysed == 1) {
            const QString report = code.run(u"report p.prj --text"_s).output;
            QVERIFY2(report.contains(says), qPrintable(report));
        }
        // Once the analyser works again the next run mends what failed.
        code.restoreProgram(u"cppcheck"_s);
        QVERIFY(code.analyse().contains(u"one/a.cpp"_s));
        QVERIFY(code.read(u"out/one/a.cpp.err"_s).contains("accessed at index 3"));
    }

    void obstaclesAreTold_data()
    {
        const TestRows<QStringList, QString, QByteArray, QString> row("files", "options", "prepare", "says");
        const QStringList one{u"a.cpp"_s};
#ifdef Q_OS_UNIX
        row("no ninja", one, {}, "#!ln -s $(command -v cppcheck) $(command -v sh) bin",
            u"Install the package ninja-build"_s);
#endif
        row("a folder in place of the results", one, {}, "folder out/one/a.cpp.err", u"can not be"_s);
        row("a file in place of the folder", one, {}, "write out", u"can not be made"_s);
        row("missing option file", one, u"-via gone.p_a\n"_s, {}, u"gone.p_a can not be read"_s);
        row("namesakes", {u"a.cpp"_s, u"in/a.cpp"_s}, {}, {}, u"would overwrite those of"_s);
        row("source is gone", {u"a.cpp"_s, u"gone.cpp"_s}, {}, "remove one/gone.cpp", u"the file does not exist"_s);
    }

    void obstaclesAreTold()
    {
        const auto [files, options, prepare, says] =
            fetched<QStringList, QString, QByteArray, QString>("files", "options", "prepare", "says");
        const CodeBase code;
        CodePart part = code.overrunning(files);
        part.options = options;
        code.project({part});
        runProgram(code.writeChild(u"prepare"_s, prepare), {}, {}, code.path());
        // Where some programs are given there are no others.
        const bool hasFew = QFile::exists(code.path(u"bin/cppcheck"_s));
        const ProgramResult result =
            code.run(u"analyse p.prj"_s, u"orv"_s, hasFew ? Variables{{u"PATH"_s, code.path(u"bin"_s)}} : Variables{});
        QCOMPARE(result.status, 2);
        QVERIFY2((result.output + result.errors).contains(says), qPrintable(result.output + result.errors));
    }

    void aStopLeavesWholeResultsAndGoesOnLater()
    {
        const CodeBase code;
        code.project({code.overrunning(numbered(u"s%1.cpp"_s, 6))});
        // The third source waits for a file that never comes.
        code.replaceProgram(u"cppcheck"_s,
                            "if-told project=units { if-told s3.cpp { mark $0.pid; hang } }\n" + realAnalyser());
        [[maybe_unused]] const OwnConsole console;
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, code.path(u"bin"_s) + QDir::listSeparator() + environment.value(u"PATH"_s));
        program.setProcessEnvironment(environment);
        program.start(code.path(u"bin/orv"_s), {u"analyse"_s, code.path(u"p.prj"_s), u"-j"_s, u"1"_s});
        QTRY_VERIFY_WITH_TIMEOUT(!code.read(u"bin/cppcheck.pid"_s).isEmpty(), 20000);
        ::kill(pid_t(program.processId()), SIGINT);
        QVERIFY(program.waitForFinished(10000));
        QCOMPARE(program.exitCode(), 2);
        QVERIFY(program.readAllStandardOutput().contains("Stopped"));
        QTRY_VERIFY(!Installation::isAlive(code.read(u"bin/cppcheck.pid"_s)));
        QCOMPARE(QDir(code.path(u"out/one"_s)).entryList(QDir::Files).size(), 6);
        QVERIFY(code.run(u"report p.prj --text"_s).output.contains("3 of 6 sources analysed"_L1));
        code.restoreProgram(u"cppcheck"_s);
        QCOMPARE(code.analyse(), QStringList({u"one/s3.cpp"_s, u"one/s4.cpp"_s, u"one/s5.cpp"_s}));
    }

    void aLauncherStandsBeforeEveryJob()
    {
        const CodeBase code;
        code.project({code.overrunning({u"a.cpp"_s, u"b.cpp"_s})});
        code.replaceProgram(u"node"_s, "append $0.launched $1\nbecome 2");
        QCOMPARE(code.run(u"analyse p.prj --launcher \"node here\""_s).status, 0);
        QCOMPARE(code.read(u"bin/node.launched"_s), QByteArray("here\nhere\n"));
        QCOMPARE(code.messages().filter(u"index 3"_s).size(), 2);
    }

    void aListIsEnough()
    {
        const CodeBase code;
        code.write(u"one/a%2.cpp"_s, "int f() { int v[2]; return v[7]; }\n");
        const QByteArray out = code.path(u"out"_s).toUtf8();
        code.write(u"s.lst"_s, "* a comment\n-outputpath \"" + out + "\"\n\"" + code.path(u"one/a%2.cpp"_s).toUtf8() +
                                   "\"\n-cmaf \"" + out + "/p\"\n");
        code.write(u"odd.via"_s, "\"\n-d\n");
#ifdef Q_OS_UNIX
        // Where there are no links it is a copy.
        QVERIFY(QFile::remove(code.path(u"bin/orvcpp"_s)));
        QVERIFY(QFile::copy(QStringLiteral(ORVTOOL), code.path(u"bin/orvcpp"_s)));
#endif
        QCOMPARE(code.run(u"-via odd.via -list s.lst"_s, u"orvcpp"_s).status, 0);
        QVERIFY(code.read(u"out/a%2.cpp.err"_s).contains("[arrayIndexOutOfBounds]"));
        QVERIFY(code.read(u"out/a%2.cpp.met"_s).startsWith("<S>STWMC "));
        QVERIFY(code.run(u"-list s.lst"_s, u"orvcount"_s).output.contains("in 1 analysed files"_L1));
        QVERIFY(code.run(u"-list s.lst"_s, u"orvcma"_s).output.contains("[unusedFunction]"_L1));
        QVERIFY(!code.read(u"out/p"_s).isEmpty());
    }

    void wrongUseIsRefused_data()
    {
        const TestRows<QString, QString> row("command", "says");
        row("no command", {}, u"orv analyse PROJECT"_s);
        row("unknown command", u"frobnicate"_s, u"no command \"frobnicate\""_s);
        row("unknown option", u"analyse p.prj --fast"_s, u"no option \"--fast\""_s);
        row("no project", u"analyse"_s, u"Name a project file"_s);
        row("two projects", u"analyse p.prj q.prj"_s, u"\"q.prj\" is too much"_s);
        row("jobs", u"analyse p.prj -j none"_s, u"-j wants a number above 0, not \"none\""_s);
        row("severity", u"report p.prj --fail-on bad"_s, u"not \"bad\""_s);
        row("no file", u"report p.prj -o"_s, u"-o wants a value"_s);
        row("missing project", u"report gone.prj"_s, u"This project file does not exist"_s);
    }

    void wrongUseIsRefused()
    {
        const auto [command, says] = fetched<QString, QString>("command", "says");
        const CodeBase code;
        const ProgramResult result = code.run(command);
        QCOMPARE(result.status, command.isEmpty() ? 0 : 2);
        QVERIFY2((result.output + result.errors).contains(says), qPrintable(result.output + result.errors));
    }
};

KOVRA_TEST(RunsTest)
#include "RunsTest.moc"

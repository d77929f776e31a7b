// SPDX-License-Identifier: MIT
#include "CodeBase.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr char overrun[] = "int f() { int v[2] = {0, 0}; return v[SIZE]; }\n";

/// Two parts that contradict each other in every respect, and a file that both build.
QList<CodePart> contradictingParts()
{
    return {{.folder = u"one"_s,
             .files = {u"a.cpp"_s, u"größe $1:2 #.cpp"_s, u"plain.c"_s},
             .defines = {u"SIZE=7"_s, u"TEXT=\"ab\""_s, u"ADD(x,y)=x+y"_s, u"EMPTY="_s},
             .includeFolders = {u"first"_s, u"second"_s},
             .standard = u"c++17"_s},
            {.folder = u"two"_s,
             .files = {u"../one/a.cpp"_s, u"b.cpp"_s},
             .defines = {u"SIZE=1"_s},
             .undefines = {u"LEGACY"_s},
             .includeFolders = {u"second"_s, u"first"_s}}};
}

QStringList without(QStringList lines, const QStringList& others)
{
    lines.removeIf([&others](const QString& line) { return others.contains(line); });
    return lines;
}

void writeContradictingCode(const CodeBase& code)
{
    code.write(u"first/order.h"_s, "#define ORDER 5\n");
    code.write(u"second/order.h"_s,
               "#define ORDER 1\n#ifdef __cplusplus\ninline int hdr(){int w[2]; return w[3];}\n#endif\n");
    code.write(u"one/a.cpp"_s, QByteArray("#include \"order.h\"\n") + overrun +
                                   "int g(){ int v[2]={0,0}; return v[ORDER]; }\n"
                                   "#ifdef LEGACY\n#error legacy\n#endif\n");
    code.write(u"one/größe $1:2 #.cpp"_s,
               "int h(){ char v[2]={0,0}; return v[sizeof(TEXT)+ADD(1,2) EMPTY]; }\n"
               "int k(){ int v[2]={0,0}; return v[9]; } // cppcheck-suppress arrayIndexOutOfBounds\n");
    code.write(u"one/plain.c"_s,
               "#include <stdlib.h>\nvoid f(void) { char *p = (char *)malloc(3); p[4] = 1; free(p); }\n");
    code.write(u"two/b.cpp"_s, QByteArray("#include \"order.h\"\n") +
                                   "char m(void* p) { const char* a = (const char*)p; return a[ORDER]; }\n");
}

} // namespace

class AnalysisTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatTheAnalyserFindsByHand()
    {
        const CodeBase code;
        writeContradictingCode(code);
        const QList<CodePart> parts = contradictingParts();
        code.project(parts);
        const ProgramResult result = code.run(u"analyse p.prj"_s);
        QVERIFY2(result.status == 0, qPrintable(result.output + result.errors));
        QStringList ours = code.messages();
        // What shows across all sources is asked for in a test of its own.
        ours.removeIf([](const QString& line) { return line.endsWith("[unusedFunction]"_L1); });
        const QStringList byHand = code.messagesByHand(parts, {});
        QCOMPARE(without(ours, byHand).join(u'\n'), QString());
        QCOMPARE(without(byHand, ours).join(u'\n'), QString());
        QVERIFY(code.read(u"out/one/a.cpp.err"_s).contains("accessed at index 7"));
        QVERIFY(!code.read(u"out/two/a.cpp.err"_s).contains("accessed at index 7"));
        // The language goes by the ending, in a project of the other language too.
        QVERIFY(!code.read(u"out/one/plain.c.err"_s).contains("cstyleCast"));
        QVERIFY(code.read(u"out/two/b.cpp.err"_s).contains("cstyleCast"));
    }

    void optionsReachTheAnalyser_data()
    {
        const TestRows<QString, QByteArray, QString> row("options", "source", "message");
        row("forced include", u"-fi \"%1/forced.h\"\n"_s, overrun, u"index 6"_s);
        row("macros of a file", u"*orv macros=\"%1/forced.h\"\n"_s, overrun, u"index 6"_s);
        row("a semicolon in a define", u"-d SIZE=5\n-d CODE=int q;int r\n"_s, QByteArray("CODE;\n") + overrun,
            u"index 5"_s);
        row("blanks and quotes in a define", u"-d SIZE=sizeof(\"a \\\\ b\")\n"_s, overrun, u"index 6"_s);
        row("a blank in a folder", u"-i \"%1/in c\"\n"_s, QByteArray("#include \"s.h\"\n") + overrun, u"index 4"_s);
        row("last define wins", u"-d SIZE=1\n-u SIZE\n-d SIZE=8\n"_s, overrun, u"index 8"_s);
        row("quote folder", u"*orv folder=quote\n-i \"%1/in c\"\n-i \"%1/other\"\n"_s,
            QByteArray("#include \"s.h\"\n") + overrun, u"index 4"_s);
        row("after folder", u"*orv folder=after\n-i \"%1/other\"\n-i \"%1/in c\"\n"_s,
            QByteArray("#include \"s.h\"\n") + overrun, u"index 4"_s);
        row("language", u"*orv language=c\n"_s, "int g() { int *new = 0; return *new; }\n", u"dereference: new"_s);
        row("library by define", u"-d QT_CORE_LIB\n"_s, "void f(const QString& s) { s.startsWith(\"x\"); }\n",
            u"[ignoredReturnValue]"_s);
        row("platform by target", u"*orv target=-m32\n"_s, "int f() { int v[8] = {0}; return v[sizeof(long) + 4]; }\n",
            u"index 8"_s);
        row("addon", u"*orv addon=y2038\n"_s, "#include <time.h>\nlong f() { return (long)time(nullptr); }\n",
            u"[y2038-unsafe-call]"_s);
        row("inconclusive", u"*orv inconclusive=yes\n"_s,
            "struct A { int f(int a); };\nint A::f(int b) { return b; }\n", u"[funcArgNamesDifferent]"_s);
    }

    void optionsReachTheAnalyser()
    {
        QFETCH(const QString, options);
        QFETCH(const QByteArray, source);
        QFETCH(const QString, message);
        const CodeBase code;
        code.write(u"forced.h"_s, "#define SIZE 6\n");
        code.write(u"in c/s.h"_s, "#define SIZE 4\n");
        code.write(u"other/s.h"_s, "#define SIZE 1\n");
        code.write(u"one/a.cpp"_s, source);
        code.project({{.folder = u"one"_s,
                       .files = {u"a.cpp"_s},
                       .options = options.contains(u"%1"_s) ? options.arg(code.path()) : options}});
        const ProgramResult result = code.run(u"analyse p.prj"_s);
        QVERIFY2(result.status == 0, qPrintable(result.output + result.errors));
        QVERIFY2(code.read(u"out/one/a.cpp.err"_s).contains(message.toUtf8()), code.read(u"out/one/a.cpp.err"_s));
    }

    void sourcesThatAreGivenUpAreNotAnalysed_data()
    {
        const TestRows<QByteArray, QString, QString> row("source", "options", "reason");
        row("syntax error", "int f( {\n", {}, u"[syntaxError]"_s);
        row("in a header", "#include \"bad.h\"\nint f() { return 1; }\n", {}, u"bad.h line 1"_s);
        row("unknown macro", "struct S { FOO(int x) int y; };\nBAR int f() { A B return 1 }\n", {},
            u"[unknownMacro]"_s);
        row("error directive", "#error no way\nint f() { return 1; }\n", u"-d X\n"_s, u"no way"_s);
        // cppcheck says nothing about this one.
        row("error directive without macros", "#error no way\nint f() { return 1; }\n", {}, u"no way"_s);
        row("addon that fails", "int f() { return 1; }\n", u"*orv addon=nosuch\n"_s, u"nosuch.py"_s);
        row("unknown library", "int f() { return 1; }\n", u"*orv library=nosuch\n"_s, u"nosuch"_s);
    }

    void sourcesThatAreGivenUpAreNotAnalysed()
    {
        QFETCH(const QByteArray, source);
        QFETCH(const QString, options);
        QFETCH(const QString, reason);
        const CodeBase code;
        code.write(u"one/bad.h"_s, "int q( {\n");
        code.write(u"one/a.cpp"_s, source);
        code.write(u"one/good.cpp"_s, "int g() { return 2; }\n");
        code.project({{.folder = u"one"_s, .files = {u"a.cpp"_s}, .options = options},
                      {.folder = u"one"_s, .files = {u"good.cpp"_s}}});
        const ProgramResult result = code.run(u"analyse p.prj"_s);
        QCOMPARE(result.status, 2);
        QVERIFY2(result.output.contains("1 of 2 sources analysed"_L1), qPrintable(result.output));
        QVERIFY2(result.output.contains(reason), qPrintable(result.output));
        QVERIFY(!QFile::exists(code.path(u"out/one/a.cpp.met"_s)));
        QVERIFY(QFile::exists(code.path(u"out/one/good.cpp.met"_s)));
        const QString status = code.run(u"-prj p.prj"_s, u"orvstatus"_s).output;
        QVERIFY2(!status.contains("complete"_L1), qPrintable(status));
        QVERIFY2(status.contains(reason), qPrintable(status));
        // A launcher's results can be looked at.
        QCOMPARE(code.run(u"-prj p.prj"_s, u"orvcpp"_s).status, 0);
        QCOMPARE(code.run(u"analyse p.prj --incomplete-ok"_s).status, 0);
    }

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
        const auto analysed = [&code](const QString& more = {}) {
            return CodeBase::analysedIn(code.run(u"analyse p.prj "_s + more));
        };
        QCOMPARE(analysed(), all);
        QCOMPARE(analysed(u"-j 1 --launcher env --time-limit 60"_s), QStringList());
        code.touch(u"inc/deep.h"_s);
        QCOMPARE(analysed(), QStringList({u"one/a b.cpp"_s, u"two/d.cpp"_s}));
        code.touch(u"one/c.cpp"_s);
        QCOMPARE(analysed(), QStringList(u"one/c.cpp"_s));
        code.touch(u"options/1.p_a"_s);
        QCOMPARE(analysed(), QStringList(u"two/d.cpp"_s));
        QFile::remove(code.path(u"out/one/c.cpp.met"_s));
        QCOMPARE(analysed(), QStringList(u"one/c.cpp"_s));
        QFile::remove(code.path(u"out/two/d.cpp.err"_s));
        QCOMPARE(analysed(), QStringList(u"two/d.cpp"_s));
        QFile::remove(code.path(u"inc/deep.h"_s));
        QCOMPARE(analysed(), QStringList({u"one/a b.cpp"_s, u"two/d.cpp"_s}));
        parts[0].defines = {u"NEW"_s};
        code.project(parts, "-threshold 3\n");
        QCOMPARE(analysed(), QStringList({u"one/a b.cpp"_s, u"one/c.cpp"_s, u"two/d.cpp"_s}));
        code.project(parts, "-threshold 2\n");
        code.write(u"messages.p_s"_s, "-threshold 1\n");
        QCOMPARE(code.run(u"-prj p.prj"_s, u"orvstatus"_s).output.section(u'\n', 0, 0),
                 u"Analysis of this project is out of date"_s);
    }

    void wholeProgramChecksEqualThoseByHand()
    {
        const CodeBase code;
        code.write(u"one/h.h"_s, "#pragma once\nint used();\nvoid callee(const int* p);\n");
        code.write(u"one/a.cpp"_s, "#include \"h.h\"\nint unused() { return 1; }\n"
                                   "int quiet() { return 1; } // cppcheck-suppress unusedFunction\n"
                                   "struct T { int a; int f() { return 1; } };\n"
                                   "int main() { callee(nullptr); return used() + T().f(); }\n");
        code.write(u"one/b.cpp"_s,
                   "#include \"h.h\"\nstruct T { char b[7]; int f() { return 2; } };\n"
                   "int used() { return T().f(); }\nvoid callee(const int* p) { int x = *p; (void)x; }\n");
        const QList<CodePart> parts{{.folder = u"one"_s, .files = {u"a.cpp"_s}, .defines = {u"A"_s}},
                                    {.folder = u"one"_s, .files = {u"b.cpp"_s}, .defines = {u"B"_s}}};
        code.project(parts);
        QCOMPARE(code.run(u"analyse p.prj"_s).status, 0);
        QDir(code.path()).mkpath(u"records"_s);
        const QStringList byHand =
            code.messagesByHand(parts, {u"--enable=warning,style,performance,portability,unusedFunction"_s,
                                        u"--cppcheck-build-dir="_s + code.path(u"records"_s)});
        QCOMPARE(code.messages(), byHand);
        const QString list = code.run(u"-prj p.prj -cmaf \"%1\""_s.arg(code.path(u"deep/cma"_s)), u"orvcma"_s).output;
        for (const auto& id : {u"[ctuOneDefinitionRuleViolation]"_s, u"[unusedFunction]"_s, u"[ctunullpointer]"_s}) {
            QVERIFY2(list.contains(id), qPrintable(list));
        }
        QCOMPARE(QString::fromUtf8(code.read(u"deep/cma"_s)), list);
    }

    void toolsThatFailAreTold_data()
    {
        const TestRows<QByteArray, QString, int> row("analyser", "says", "analysed");
        const QByteArray normal = "case \"$*\" in *--version*) echo Cppcheck 2.10; exit;; esac\n";
        const QByteArray forA =
            "case \"$*\" in *--project=units/*) grep -q a.cpp ${5#--project=} || exit 0;; *) exit 0;; esac\n";
        row("too old", "echo Cppcheck 1.90\n", u"is too old: version 2.10"_s, 0);
        row("crashes", normal + forA + "kill -SEGV $$\n", u"the analyser ended with signal 11"_s, 1);
        row("fails", normal + forA + "echo bad luck; exit 3\n", u"status 3: bad luck"_s, 1);
        row("hangs", normal + forA + "exec sleep 1000\n", u"was stopped after 1 seconds"_s, 1);
    }

    void toolsThatFailAreTold()
    {
        QFETCH(const QByteArray, analyser);
        QFETCH(const QString, says);
        QFETCH(const int, analysed);
        const CodeBase code;
        code.write(u"one/a.cpp"_s, overrun);
        code.write(u"one/b.cpp"_s, "int g() { return 1; }\n");
        code.project({{.folder = u"one"_s, .files = {u"a.cpp"_s, u"b.cpp"_s}, .defines = {u"SIZE=3"_s}}});
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
        QFile::remove(code.path(u"bin/cppcheck"_s));
        QVERIFY(CodeBase::analysedIn(code.run(u"analyse p.prj"_s)).contains(u"one/a.cpp"_s));
        QVERIFY(code.read(u"out/one/a.cpp.err"_s).contains("accessed at index 3"));
    }

    void obstaclesAreTold_data()
    {
        const TestRows<QString, QString> row("obstacle", "says");
        row("unwritable", u"unwritable"_s, u"can not be"_s);
        row("a file in place of the folder", u"file"_s, u"can not be made"_s);
        row("no ninja", u"ninja"_s, u"Install the package ninja-build"_s);
        row("missing option file", u"option"_s, u"gone.p_a can not be read"_s);
        row("namesakes", u"namesake"_s, u"would overwrite those of"_s);
        row("source is gone", u"gone"_s, u"the file does not exist"_s);
    }

    void obstaclesAreTold()
    {
        QFETCH(const QString, obstacle);
        QFETCH(const QString, says);
        const CodeBase code;
        code.write(u"one/a.cpp"_s, overrun);
        code.write(u"one/in/a.cpp"_s, overrun);
        CodePart part{.folder = u"one"_s, .files = {u"a.cpp"_s}, .defines = {u"SIZE=3"_s}};
        Variables more;
        if (obstacle == "unwritable"_L1) {
            // A full disk answers the same to everybody, also to root.
            QDir(code.path()).mkpath(u"out/one"_s);
            QFile::link(u"/dev/full/x"_s, code.path(u"out/one/a.cpp.err"_s));
        } else if (obstacle == "file"_L1) {
            code.write(u"out"_s, "");
        } else if (obstacle == "ninja"_L1) {
            for (const auto& name : {u"cppcheck"_s, u"sh"_s}) {
                QFile::link(QStandardPaths::findExecutable(name), code.path(u"bin/"_s + name));
            }
            more = {{u"PATH"_s, code.path(u"bin"_s)}};
        } else if (obstacle == "option"_L1) {
            part.options = u"-via gone.p_a\n"_s;
        } else {
            part.files += obstacle == "gone"_L1 ? u"gone.cpp"_s : u"in/a.cpp"_s;
        }
        code.project({part});
        const ProgramResult result = code.run(u"analyse p.prj"_s, u"orv"_s, more);
        QCOMPARE(result.status, 2);
        QVERIFY2((result.output + result.errors).contains(says), qPrintable(result.output + result.errors));
    }

    void aStopLeavesWholeResultsAndGoesOnLater()
    {
        const CodeBase code;
        QStringList files;
        for (int i = 0; i < 6; ++i) {
            files += u"s%1.cpp"_s.arg(i);
            code.write(u"one/"_s + files.last(), overrun);
        }
        code.project({{.folder = u"one"_s, .files = files, .defines = {u"SIZE=3"_s}}});
        // The third source waits for a file that never comes.
        const QByteArray real = QStandardPaths::findExecutable(u"cppcheck"_s).toUtf8();
        code.replaceProgram(u"cppcheck"_s,
                            "case \"$*\" in *--project=units/*) grep -q s3.cpp ${5#--project=} && { echo $$ > " +
                                code.path(u"pid"_s).toUtf8() + "; exec sleep 1000; };; esac\nexec " + real +
                                " \"$@\"\n");
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, code.path(u"bin"_s) + u':' + environment.value(u"PATH"_s));
        program.setProcessEnvironment(environment);
        program.start(code.path(u"bin/orv"_s), {u"analyse"_s, code.path(u"p.prj"_s), u"-j"_s, u"1"_s});
        QTRY_VERIFY_WITH_TIMEOUT(!code.read(u"pid"_s).trimmed().isEmpty(), 20000);
        ::kill(pid_t(program.processId()), SIGTERM);
        QVERIFY(program.waitForFinished(10000));
        QCOMPARE(program.exitCode(), 2);
        QVERIFY(program.readAllStandardOutput().contains("Stopped"));
        QTRY_VERIFY(!Installation::isAlive(code.read(u"pid"_s)));
        QCOMPARE(QDir(code.path(u"out/one"_s)).entryList(QDir::Files).size(), 6);
        QVERIFY(code.run(u"report p.prj --text"_s).output.contains("3 of 6 sources analysed"_L1));
        QFile::remove(code.path(u"bin/cppcheck"_s));
        QCOMPARE(CodeBase::analysedIn(code.run(u"analyse p.prj"_s)),
                 QStringList({u"one/s3.cpp"_s, u"one/s4.cpp"_s, u"one/s5.cpp"_s}));
    }

    void aLauncherStandsBeforeEveryJob()
    {
        const CodeBase code;
        code.write(u"one/a.cpp"_s, overrun);
        code.write(u"one/b.cpp"_s, overrun);
        code.project({{.folder = u"one"_s, .files = {u"a.cpp"_s, u"b.cpp"_s}, .defines = {u"SIZE=3"_s}}});
        code.replaceProgram(u"node"_s,
                            "echo \"$1\" >> " + code.path(u"launched"_s).toUtf8() + "\nshift\nexec \"$@\"\n");
        QCOMPARE(code.run(u"analyse p.prj --launcher \"node here\""_s).status, 0);
        QCOMPARE(code.read(u"launched"_s), QByteArray("here\nhere\n"));
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
        QFETCH(const QString, command);
        QFETCH(const QString, says);
        const CodeBase code;
        const ProgramResult result = code.run(command);
        QCOMPARE(result.status, command.isEmpty() ? 0 : 2);
        QVERIFY2((result.output + result.errors).contains(says), qPrintable(result.output + result.errors));
    }
};

KOVRA_TEST(AnalysisTest)
#include "AnalysisTest.moc"

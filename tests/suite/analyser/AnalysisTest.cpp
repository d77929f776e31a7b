// SPDX-License-Identifier: MIT
#include "CodeBase.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto overrun = CodeBase::overrun;

#ifdef Q_OS_WIN
// Colons are not for names there, but each path has one.
constexpr QStringView oddName = u"größe $1 #.cpp";
#else
constexpr QStringView oddName = u"größe $1:2 #.cpp";
#endif

/// Two parts that contradict each other in every respect, and a file that both build.
QList<CodePart> contradictingParts()
{
    return {{.folder = u"one"_s,
             .files = {u"a.cpp"_s, oddName.toString(), u"plain.c"_s},
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
    code.write(u"one/"_s + oddName.toString(),
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
        QCOMPARE(code.run(u"analyse p.prj"_s).status, 0);
        const QStringList ours = code.messagesOfSources();
        const QStringList byHand = code.messagesByHand(parts);
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
        row("quote folder", u"-i \"%1/other\"\n*orv folder=quote\n-i \"%1/in c\"\n"_s,
            QByteArray("#include \"s.h\"\n") + overrun, u"index 4"_s);
        row("after folder", u"*orv folder=after\n-i \"%1/other\"\n-i \"%1/in c\"\n"_s,
            QByteArray("#include \"s.h\"\n") + overrun, u"index 4"_s);
        row("language", u"*orv language=c\n"_s, "int g() { int *new = 0; return *new; }\n", u"dereference: new"_s);
        row("library by define", u"-d QT_CORE_LIB\n"_s, "void f(const QString& s) { s.startsWith(\"x\"); }\n",
            u"[ignoredReturnValue]"_s);
        row("revision of moc", u"*orv folder=system\n-i \"/usr/include/qt6/QtCore\"\n-d SIZE=5\n"_s,
            QByteArray("#if Q_MOC_OUTPUT_REVISION != 68\n#error revision\n#endif\n") + overrun, u"index 5"_s);
        row("system of Qt", u"-d QT_CORE_LIB\n-d __linux__=1\n-d SIZE=5\n"_s,
            QByteArray("class A { Q_DISABLE_COPY_MOVE(A) };\n#ifdef Q_OS_LINUX\n") + overrun + "#endif\n",
            u"index 5"_s);
        row("test framework of the system", {},
            "#include \"gtest/gtest.h\"\nclass A {};\nTEST(A, B) { int v[2] = {0, 0}; EXPECT_EQ(v[7], 1); }\n",
            u"index 7"_s);
        row("platform by target", u"*orv target=-m32\n"_s, "int f() { int v[8] = {0}; return v[sizeof(long) + 4]; }\n",
            u"index 8"_s);
#ifdef Q_OS_UNIX
        // Addons want Python.
        row("addon", u"*orv addon=y2038\n"_s, "#include <time.h>\nlong f() { return (long)time(nullptr); }\n",
            u"[y2038-unsafe-call]"_s);
#endif
        row("inconclusive", u"*orv inconclusive=yes\n"_s,
            "struct A { int f(int a); };\nint A::f(int b) { return b; }\n", u"[funcArgNamesDifferent]"_s);
    }

    void optionsReachTheAnalyser()
    {
        const auto [options, source, message] = fetched<QString, QByteArray, QString>("options", "source", "message");
        const CodeBase code;
        code.write(u"forced.h"_s, "#define SIZE 6\n");
        code.write(u"in c/s.h"_s, "#define SIZE 4\n");
        code.write(u"other/s.h"_s, "#define SIZE 1\n");
        code.write(u"one/a.cpp"_s, source);
        code.project({{.folder = u"one"_s,
                       .files = {u"a.cpp"_s},
                       .options = options.contains(u"%1"_s) ? options.arg(code.path()) : options}});
        QCOMPARE(code.run(u"analyse p.prj"_s).status, 0);
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
        row("addon that fails", "int f() { return 1; }\n", u"*orv addon=nosuch\n"_s, u"nosuch"_s);
        row("unknown library", "int f() { return 1; }\n", u"*orv library=nosuch\n"_s, u"nosuch"_s);
    }

    void sourcesThatAreGivenUpAreNotAnalysed()
    {
        const auto [source, options, reason] = fetched<QByteArray, QString, QString>("source", "options", "reason");
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

    // What a build would have made is missed, the system's own headers and those that no condition lets in are not.
    void headersThatAreNotFoundAreTold()
    {
        const CodeBase code;
        code.write(u"built in/sys/own.h"_s, {});
        const QString builtin = u"*orv builtin=\"%1\"\n"_s.arg(code.path(u"built in"_s));
        code.write(u"one/by a.h"_s, "#include \"made.h\"\n");
        code.write(u"one/a.cpp"_s, "#include \"by a.h\"\n#include \"sys/own.h\"\n#include <string>\n#ifdef NEVER\n"
                                   "#include \"never.h\"\n#endif\n");
        code.write(u"one/b.cpp"_s, "#include \"made.h\"\n#include \"also.h\"\nint f() { return MADE; }\n");
        code.project(
            {{.folder = u"one"_s, .files = {u"a.cpp"_s, u"b.cpp"_s}, .defines = {u"A=1"_s}, .options = builtin}});
        ProgramResult result = code.run(u"analyse p.prj"_s);
        const QString told = u"included and not found: made.h (in 2 sources), also.h. "_s;
        QVERIFY2(result.output.contains(told), qPrintable(result.output));
        QVERIFY2(code.messages().filter(u"missingInclude"_s).isEmpty(), qPrintable(code.messages().join(u'\n')));
        QVERIFY(code.run(u"-prj p.prj"_s, u"orvstatus"_s).output.contains(told));
        QVERIFY(code.run(u"report p.prj --sarif"_s).output.contains(told));
        code.write(u"one/made.h"_s, "#define MADE 1\n");
        code.write(u"one/also.h"_s, {});
        result = code.run(u"analyse p.prj"_s);
        QVERIFY2(!result.output.contains("not found"_L1), qPrintable(result.output));
    }

    void wholeProgramChecksEqualThoseByHand()
    {
        const CodeBase code;
        code.write(u"one/h.h"_s, "#pragma once\nint used();\nvoid callee(const int* p);\n");
        code.write(u"one/a.cpp"_s, "#include \"h.h\"\nint unused() { return 1; }\n"
                                   "int quiet() { return 1; } // cppcheck-suppress unusedFunction\n"
                                   "struct T { int a; int f() { return 1; } };\n"
                                   "int main() { callee(nullptr); return used() + T().f(); }\n");
        code.write(
            u"one/b.cpp"_s,
            "#include \"h.h\"\nstruct T { char b[7]; int f() { return 2; } };\n"
            "template <bool Yes> char* called(char* x) { return Yes ? x : x + 1; }\n"
            "void __some_test() {}\nint used() { char c = 0; return T().f() + *called<true>(&c); }\nvoid callee(const "
            "int* p) { int x = *p; (void)x; }\n");
        const QList<CodePart> parts{{.folder = u"one"_s, .files = {u"a.cpp"_s}, .defines = {u"A"_s}},
                                    {.folder = u"one"_s, .files = {u"b.cpp"_s}, .defines = {u"B"_s}}};
        code.project(parts);
        QCOMPARE(code.run(u"analyse p.prj"_s).status, 0);
        QDir(code.path()).mkpath(u"records"_s);
        QStringList byHand =
            code.messagesByHand(parts, {u"--enable=warning,style,performance,portability,unusedFunction"_s,
                                        u"--cppcheck-build-dir="_s + code.path(u"records"_s)});
        // With records cppcheck tells a template as unused that it has for its use only, and each test of a framework.
        QCOMPARE(byHand.removeIf([](const QString& line) {
            return line.contains("'called < true >'"_L1) || line.contains("'__some_test'"_L1);
        }),
                 2);
        QCOMPARE(code.messages(), byHand);
        const QString list = code.run(u"-prj p.prj -cmaf \"%1\""_s.arg(code.path(u"deep/cma"_s)), u"orvcma"_s).output;
        for (const auto& id : {u"[ctuOneDefinitionRuleViolation]"_s, u"[unusedFunction]"_s, u"[ctunullpointer]"_s}) {
            QVERIFY2(list.contains(id), qPrintable(list));
        }
        QCOMPARE(QString::fromUtf8(code.read(u"deep/cma"_s)), list);
    }
};

KOVRA_TEST(AnalysisTest)
#include "AnalysisTest.moc"

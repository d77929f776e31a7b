// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "TestMain.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

/// What compilers are asked, and which.
class CompilerMacrosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksTheCompiler()
    {
        const QString compiler = QStandardPaths::findExecutable(u"c++"_s);
        if (compiler.isEmpty()) {
            QSKIP("needs a compiler");
        }
        const ConvertedProject project;
        // The folder that these have in common holds the compiler, too.
        project.writeCommands({u"ccache c++ -fopenmp -std=c++17 -c a.cpp"_s, u"c++ -c /usr/none.cpp"_s});
        const QString personality = project.write(u"work/t.p_c"_s, "-d T\n");
        const ProgramResult result =
            project.convertDatabase({u"--compiler-macros"_s, u"1"_s, u"--options"_s, u"keep-missing,sub-projects"_s,
                                     u"--compiler-personality"_s, personality});
        QVERIFY2(result.output.contains("c++ was asked for its macros"_L1), qPrintable(result.output));
        const QStringList lines = project.options(project.partOf(u"a.cpp"_s).compiler);
        QCOMPARE(lines.first(), u"-d T"_s);
        QVERIFY(lines.contains(u"*orv compiler=\"%1\""_s.arg(compiler)));
        QVERIFY(lines.contains(u"*orv builtin=\"/usr/include\""_s));
        QVERIFY(lines.contains(u"-d __CHAR_BIT__=8"_s));
        QVERIFY(lines.contains(u"-d __GNUG__=12"_s) || lines.filter(u"-d __GNUG__="_s).size() == 1);
        QCOMPARE(lines.filter(u"-d _OPENMP="_s).size(), 1);
        QCOMPARE(lines.filter(u"-d __INT64_C(c)=c ##"_s).size(), 1);
        QCOMPARE(lines.filter(u"__cplusplus="_s).size(), 0);
        // As the system's headers have it, which the analyser does not read.
        for (const auto& macro : {u"LLONG_MIN=(-0x7fffffffffffffffLL - 1)"_s, u"ULONG_MAX=0xffffffffffffffffUL"_s,
                                  u"UINTPTR_MAX=0xffffffffffffffffUL"_s, u"BYTE_ORDER=1234"_s}) {
            QVERIFY2(lines.contains(u"-d "_s + macro), qPrintable(macro));
        }
    }

    void asksEachOnce()
    {
        const ConvertedProject project;
        const QString compiler =
            project.writeChild(u"tools/gcc"_s, "append $0.log asked; print #define ASKED_WITH $*; copy-input");
        QByteArray entries = "[";
        for (int i = 0; i < 20; ++i) {
            entries += (i == 0 ? "" : ",") + QByteArray(R"({"file": "s/)") + QByteArray::number(i) +
                       R"(.c", "command": ")" + compiler.toUtf8() + R"( -std=c99 -m32 -DI=)" + QByteArray::number(i) +
                       " -arch x -c x.c\"}";
        }
        project.writeDatabase(entries + "]");
        const ProgramResult result = project.convertDatabase({u"--compiler-macros"_s, u"1"_s});
        QVERIFY2(result.status == 0, qPrintable(result.errors));
        QCOMPARE(project.read(u"tools/gcc.log"_s), QByteArray("asked\n"));
        QCOMPARE(project.options(project.partOf(u"3.c"_s).compiler).constLast(),
                 u"-d ASKED_WITH=-E -dM -v -x c -std=c99 -m32 -arch x -"_s);
    }

    void takesTheUsualMacros_data()
    {
        const TestRows<QString, QByteArray, QString, QString> row("program", "body", "says", "macro");
        row("not there", u"/opt/none/aarch64-linux-gnu-gcc-12"_s, {}, u"it is not on this system"_s,
            u"-d __aarch64__=1"_s);
#ifdef Q_OS_WIN
        const QString usual = u"-d _WIN32=1"_s;
#else
        const QString usual = u"-d __linux__=1"_s;
#endif
        row("refuses", u"%1/tools/gcc"_s, "print-error no such option; exit 1",
            u"it refused to answer: no such option"_s, u"-d __BYTE_ORDER__=1234"_s);
        row("never ends", u"%1/tools/cc"_s, "hang", u"it gave no answer in time"_s, u"-d __x86_64__=1"_s);
        row("floods", u"%1/tools/clang"_s, "flood 0 #define A", u"its answer is too long"_s, u"-d __clang__=1"_s);
        row("says nothing", u"%1/tools/gcc-12"_s, "exit", u"its answer holds no macros"_s, usual);
        row("not a compiler's name", u"%1/tools/clean"_s, "write $0.ran", u"it has no option"_s, usual);
        row("among the sources", u"%1/work/gcc"_s, "write $0.ran", u"it lies among the sources"_s, usual);
        row("by a relative path", u"./gcc"_s, {}, u"it is named by a relative path"_s, u"-d __linux__=1"_s);
        row("cross compiler for Windows", u"/opt/none/i686-w64-mingw32-gcc"_s, {}, u"it is not on this system"_s,
            u"-d __SIZEOF_POINTER__=4"_s);
    }

    void takesTheUsualMacros()
    {
        QFETCH(QString, program);
        const auto [body, says, macro] = fetched<QByteArray, QString, QString>("body", "says", "macro");
        const ConvertedProject project;
        program.replace(u"%1"_s, project.path(u"work"_s).chopped(5));
        if (!body.isEmpty()) {
            project.writeChild(program.mid(project.path(u"work"_s).size() - 4), body);
        }
        project.writeCommands({program + u" -c a.c"_s});
        const ProgramResult result = project.convertDatabase({u"--compiler-macros"_s, u"1"_s});
        QVERIFY2(result.output.contains(says), qPrintable(result.output + result.errors));
        const QStringList lines = project.options(project.partOf(u"a.c"_s).compiler);
        QVERIFY2(lines.contains(macro), qPrintable(lines.join(u'\n')));
        QVERIFY(!QFile::exists(program + u".ran"_s));
    }
};

KOVRA_TEST(CompilerMacrosTest)
#include "CompilerMacrosTest.moc"

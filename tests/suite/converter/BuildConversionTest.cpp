// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Each source with its defines and folders, "~" for the folder of the test.
QString sourcesOf(const ConvertedProject& place)
{
    static const QRegularExpression wanted(u"^-[di] "_s);
    QStringList result;
    for (const ConvertedProject::Part& part : place.parts()) {
        for (const QString& file : part.files) {
            result += part.name.section(u'~', 0, 0) + u' ' + file + u": "_s +
                      place.options(part.analyser).filter(wanted).join(u' ');
        }
    }
    return result.join(u'|').replace(place.path(u"work"_s), u"~"_s);
}

QString namesIn(const ConvertedProject& place, const QString& folder)
{
    return QDir(place.work(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).join(u' ');
}

/// Takes away all programs but these, until the end of the place.
void leavePrograms(const ConvertedProject& place, const QStringList& names)
{
    QDir().mkpath(place.path(u"few"_s));
    for (const QString& name : names) {
        QFile::link(u"/usr/bin/"_s + name, place.path(u"few/"_s + name));
    }
    qputenv("PATH", place.path(u"few"_s).toLocal8Bit());
}

#ifdef Q_OS_WIN
// Where names have no letter case, they stay as a project writes them.
constexpr auto foundName = "a.cpp"_L1;
#else
constexpr auto foundName = "A.cpp"_L1;
#endif

constexpr auto makefile = "all: a.o sub/b.o\n"
                          "a.o: a.c\n\t$(CC) -DVALUE=\"$(VALUE)\" -Iinc -c a.c -o a.o\n"
                          "sub/b.o: sub/b.c\n\tcd sub && $(CC) -DB=$(B) -I../inc -c b.c\n"
                          "fail:\n\t@echo going; echo wrong >&2; exit 3\n";

} // namespace

/// What prjconv makes of real builds, and of what it is told by those who know them.
class BuildConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void configuresASourceFolder()
    {
        const ConvertedProject place;
        place.write(u"work/src/CMakeLists.txt"_s,
                    "cmake_minimum_required(VERSION 3.16)\nproject(x C)\n"
                    "add_library(one STATIC lib/a.c)\ntarget_compile_definitions(one PRIVATE ONE)\n"
                    "if(MORE)\nadd_library(two STATIC lib/a.c)\n"
                    "target_include_directories(two PRIVATE \"${MORE}\")\nendif()\n");
        place.write(u"work/src/lib/a.c"_s, "int a;\n");
        const QStringList arguments{u"--cmake-source"_s, u"src"_s, u"--options"_s, u"sub-projects"_s};
        const QStringList options{u"--cmake-options"_s, u"-D 'MORE=x y' -DCMAKE_BUILD_TYPE=None"_s};
        const ProgramResult result = place.convert(arguments + options);
        QVERIFY2(result.output.contains("-- Generating done"_L1), qPrintable(result.output + result.errors));
        QCOMPARE(sourcesOf(place), u"one a.c: -d ONE|two a.c: -i \"~/src/x y\""_s);
        QCOMPARE(namesIn(place, u"src"_s), u"CMakeLists.txt lib"_s);
        // What the options of the last time said is forgotten.
        QCOMPARE(place.convert(arguments).errors, QString());
        QCOMPARE(sourcesOf(place), u"p a.c: -d ONE"_s);
        leavePrograms(place, u"cmake make cc gcc as ld ar ranlib"_s.split(u' '));
        QCOMPARE(place.convert(arguments).errors, QString());
        QCOMPARE(sourcesOf(place), u"p a.c: -d ONE"_s);
        QVERIFY(QFile::exists(place.work(u"p.cmake/Makefile"_s)));
    }

    void recordsABuild()
    {
        const ConvertedProject place;
        place.write(u"work/src/Makefile"_s, makefile);
        place.write(u"work/src/a.c"_s, "int a = sizeof(VALUE);\n");
        place.write(u"work/src/sub/b.c"_s, "int b = B;\n");
        const QStringList arguments{u"--make-folder"_s, u"src"_s,           u"--make-command"_s,
                                    u"make 'B=4'"_s,    u"--environment"_s, u"VALUE=int *;CC=gcc\nUNUSED=a=b"_s,
                                    u"--options"_s,     u"sub-projects"_s};
        QCOMPARE(place.convert(arguments).errors, QString());
        QCOMPARE(sourcesOf(place), u"p a.c: -i \"~/src/inc\" -d VALUE=int *|sub b.c: -i \"~/src/inc\" -d B=4"_s);
        const QByteArray record = place.read(u"work/p.bear/compile_commands.json"_s);
        // All is built: nothing can be recorded, and the good record stays.
        const QString again = place.convert(arguments).errors;
        QVERIFY2(again.contains("/src: nothing was compiled: run \"make clean\" first"_L1), qPrintable(again));
        QCOMPARE(place.read(u"work/p.bear/compile_commands.json"_s), record);
        QFile::remove(place.work(u"src/a.o"_s));
        const QString part = place.convert(arguments).output;
        QVERIFY2(part.contains("1 compilations were recorded, 2 the last time: was a part built already?"_L1),
                 qPrintable(part));
        QCOMPARE(sourcesOf(place), u"p a.c: -d VALUE=int * -i \"~/src/inc\""_s);
        QCOMPARE(namesIn(place, u"p.bear"_s), u"compile_commands.json made-by-prjconv.txt"_s);
    }

    void tellsWhatFails_data()
    {
        const TestRows<QStringList, QString> row("arguments", "told");
        const auto cmake = [](const QString& folder, const QString& options = {}) {
            return QStringList{u"--cmake-source"_s, folder, u"--cmake-options"_s, options};
        };
        const auto make = [](const QString& command, const QString& folder = u"src"_s, const QString& variables = {}) {
            return QStringList{u"--make-command"_s, command, u"--make-folder"_s, folder, u"--environment"_s, variables};
        };
        row("no lists", cmake(u"none"_s), u"/none: has no CMakeLists.txt"_s);
        row("broken lists", cmake(u"broken"_s), u"it %s is <wrong>"_s);
        row("nothing compiled", cmake(u"src"_s), u"/src: cmake has written no compile_commands.json"_s);
        row("own build folder", cmake(u"src"_s, u"-DA=1 -B elsewhere"_s), u"-B: the source folder has its own field"_s);
        row("quote for cmake", cmake(u"src"_s, u"-DA='1"_s),
            u"a quote is not closed in the options for cmake: -DA='1"_s);
        row("failed build", make(u"make fail"_s), u"going\nwrong\n"_s);
        row("its status", make(u"sh -c 'exit 3'"_s), u"bear ended with status 3"_s);
        row("no shell", make(u"true && make"_s), u"/src: nothing was compiled"_s);
        row("no such command", make(u"no-such-build-tool"_s), u"no-such-build-tool"_s);
        row("no folder", make(u"make"_s, u"gone"_s), u"/gone: is not a folder"_s);
        row("no variable", make(u"make"_s, u"src"_s, u"A=1;=2"_s), u"\"=2\" is no variable for the build"_s);
        row("quote for make", make(u"make \"x"_s), u"a quote is not closed in the build command: make \"x"_s);
        row("without bear", make(u"make"_s), u"Install the package \"bear\"."_s);
        row("without cmake", cmake(u"src"_s), u"Install the package \"cmake\"."_s);
        row("without ninja", {u"--build-folder"_s, u"src"_s}, u"Install the package \"ninja-build\"."_s);
        row("neither ninja's nor cmake's folder", {u"--build-folder"_s, u"none"_s},
            u"/none: has neither a compile_commands.json nor a build.ninja"_s);
        row("cmake's folder for make", {u"--build-folder"_s, u"configured"_s},
            u"-DCMAKE_EXPORT_COMPILE_COMMANDS=ON ~/configured"_s);
        row("broken rules", {u"--build-folder"_s, u"broken"_s}, u"build.ninja:3: unknown build rule 'nothing'"_s);
        row("another's folder", {u"--build-folder"_s, u"src"_s},
            u"/p.ninja: is there already and was not made by this program"_s);
    }

    void tellsWhatFails()
    {
        const auto [arguments, told] = fetched<QStringList, QString>("arguments", "told");
        const ConvertedProject place;
        place.write(u"work/none/a.c"_s, "");
        place.write(
            u"work/broken/CMakeLists.txt"_s,
            "cmake_minimum_required(VERSION 3.16)\nproject(x NONE)\nmessage(FATAL_ERROR \"it %s is <wrong>\")\n");
        place.write(u"work/broken/build.ninja"_s, "rule cc\n command = cc\nbuild a.o: nothing\n");
        place.write(u"work/configured/CMakeCache.txt"_s, "");
        place.write(u"work/src/CMakeLists.txt"_s, "cmake_minimum_required(VERSION 3.16)\nproject(x NONE)\n");
        place.write(u"work/src/Makefile"_s, makefile);
        place.write(u"work/src/build.ninja"_s, "");
        if (QByteArray(QTest::currentDataTag()).startsWith("without ")) {
            leavePrograms(place, {});
        } else if (told.startsWith("/p.ninja"_L1)) {
            place.write(u"work/p.ninja/mine"_s, "precious");
        }
        const QString errors = place.convert(arguments).errors.replace(place.path(u"work"_s), u"~"_s);
        QVERIFY2(errors.contains(told), qPrintable(errors));
        QVERIFY(!QFile::exists(place.work(u"p.bear"_s)));
        QVERIFY(!QFile::exists(place.work(u"p.prj"_s)));
        QCOMPARE(namesIn(place, u"p.ninja"_s), told.startsWith("/p.ninja"_L1) ? u"mine"_s : QString());
    }

    void asksNinja()
    {
        const ConvertedProject place;
        place.write(u"work/src/a.c"_s, "");
        place.write(u"work/src/b.c"_s, "");
        place.write(
            u"work/build/build.ninja"_s,
            "rule cc\n command = cc $flags -c $in -o $out\n"
            "rule rsp\n command = cc @$out.rsp -c $in -o $out\n rspfile = $out.rsp\n rspfile_content = -DINRSP=1\n"
            "rule link\n command = cc $in -o $out\n"
            "rule script\n command = sh -c 'cat $in' -c > $out\n"
            "build a.o: cc ../src/a.c\n flags = -DA -I../inc\n"
            "build b.o: rsp ../src/b.c\nbuild prog: link a.o b.o\nbuild text: script ../src/a.c\n");
        // Also as a folder that may hold a database, and has none.
        for (const auto& option : {u"--build-folder"_s, u"--compile-commands"_s}) {
            QCOMPARE(place.convert({option, u"build"_s}).errors, QString());
            QCOMPARE(sourcesOf(place), u"p a.c: -d A -i \"~/inc\"|p b.c: -d INRSP=1"_s);
        }
        QCOMPARE(namesIn(place, u"build"_s), u"build.ninja"_s);
        // What the build tool has written itself is better.
        place.write(u"work/build/compile_commands.json"_s, R"([{"file": "../src/a.c", "command": "cc -DOWN -c a.c"}])");
        QCOMPARE(place.convert({u"--build-folder"_s, u"build"_s}).errors, QString());
        QCOMPARE(sourcesOf(place), u"p a.c: -d OWN"_s);
    }

    void makesPartsOfProjects()
    {
        const ConvertedProject place;
        const QByteArray project = "<Project>\n<ItemDefinitionGroup><ClCompile>\n"
                                   "<PreprocessorDefinitions>FOR_%1;$(None)</PreprocessorDefinitions></ClCompile>"
                                   "</ItemDefinitionGroup>\n"
                                   "<ItemGroup><ClCompile Include=\"..\\SRC\\a.cpp\"/></ItemGroup></Project>\n";
        place.write(u"work/Src/A.cpp"_s, "int a;\n");
        place.write(u"work/one/one.vcxproj"_s, QByteArray(project).replace("%1", "one"));
        place.write(u"work/two/two.vcxproj"_s, QByteArray(project).replace("%1", "two"));
        place.write(u"work/all.slnx"_s,
                    "<Solution><Project Path=\"one/one.vcxproj\"/><Project Path=\"two/two.vcxproj\"/></Solution>\n");
        const QStringList arguments{u"--visual-studio"_s, u"all.slnx"_s, u"--options"_s, u"sub-projects"_s};
        QCOMPARE(place.convert(arguments).errors, QString());
        QCOMPARE(sourcesOf(place).remove(QRegularExpression(u" -d [_W]\\w+(=1)?"_s)),
                 u"one %1: -d FOR_one|two %1: -d FOR_two"_s.arg(foundName));
        const QString log = QString::fromUtf8(place.read(u"work/p.options/conversion.log"_s));
        QVERIFY2(log.contains("\"$(None)\": $(None) is unknown"_L1), qPrintable(log));
        QVERIFY2(log.contains(place.work(u"two/two.vcxproj:3"_s)), qPrintable(log));
    }

    void tellsWhatWasLeftOutBeforeItFailed()
    {
        const ConvertedProject place;
        place.write(u"work/all.sln"_s,
                    "Microsoft Visual Studio Solution File\nProject(\"{8}\") = nonsense\nEndProject\n");
        const ProgramResult result = place.convert({u"--visual-studio"_s, u"all.sln"_s});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.output.contains("all.sln:2: a project is left out"_L1), qPrintable(result.output));
        QVERIFY2(result.errors.contains("none of its projects is left"_L1), qPrintable(result.errors));
        QVERIFY(!QFile::exists(place.work(u"p.prj"_s)));
        const ProgramResult both = place.convert({u"--visual-studio"_s, u"all.sln"_s, u"--build-folder"_s, u"."_s});
        QCOMPARE(both.status, 2);
    }

    void stopsABuildWithAllItStarted()
    {
        const ConvertedProject place;
        place.write(u"work/src/Makefile"_s, "all:\n\t@echo building; echo $$$$ > pid; trap '' TERM; sleep 300\n");
        QProcess converter;
        converter.setWorkingDirectory(place.work({}));
        converter.start(QStringLiteral(CONVERTER),
                        {u"--make-folder"_s, u"src"_s, u"--output"_s, u"p.prj"_s, u"--analyser"_s, u"ORVCPP"_s});
        QByteArray output;
        QTRY_VERIFY_WITH_TIMEOUT((output += converter.readAllStandardOutput()).contains("building"), 20000);
        QTRY_VERIFY(!place.read(u"work/src/pid"_s).isEmpty());
        const QByteArray pid = place.read(u"work/src/pid"_s);
        QVERIFY(Installation::isAlive(pid));
        ::kill(pid_t(converter.processId()), SIGTERM);
        QVERIFY(converter.waitForFinished(10000));
        QCOMPARE(converter.exitCode(), 1);
        QVERIFY(converter.readAllStandardError().contains("stopped while the build was recorded"));
        QTRY_VERIFY(!Installation::isAlive(pid));
        QVERIFY(!QFile::exists(place.work(u"p.bear"_s)));
        QVERIFY(!QFile::exists(place.work(u"p.prj"_s)));
    }
};

KOVRA_TEST(BuildConversionTest)
#include "BuildConversionTest.moc"

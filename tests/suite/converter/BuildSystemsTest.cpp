// SPDX-License-Identifier: MIT
#include "builds/BuildInputs.h"
#include "Failure.h"
#include "Installation.h"
#include "Notices.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// What asking a build system gives, with "~" for the test's own folder.
struct Answer
{
    Answer(const Installation& place, const BuildInputs& inputs)
    {
        Notices told;
        const auto shortened = [&](const QString& text) {
            return QString(text).replace(place.path(u"work"_s), u"~"_s);
        };
        try {
            const BuildAnswer answer = askBuildSystem(inputs, place.path(u"work/out/p.prj"_s), told);
            database = shortened(answer.database);
            const QJsonArray entries = QJsonDocument::fromJson(place.read(answer.database)).array();
            for (const auto& entry : entries) {
                QStringList words = entry["command"_L1].toString().split(u' ');
                const QJsonArray arguments = entry["arguments"_L1].toArray();
                for (const auto& word : arguments) {
                    words += word.toString();
                }
                commands += entry["file"_L1].toString().section(u'/', -1) + u": "_s +
                            words.filter(QRegularExpression(u"^-[DI]"_s)).join(u' ');
            }
            commands.sort();
        } catch (const Failure& failure) {
            error = shortened(failure.text);
        }
        notices = shortened(told.said().join(u'\n'));
        commands = shortened(commands.join(u'\n')).split(u'\n');
    }

    QString database;
    QStringList commands;
    QString notices;
    QString error;
};

QStringList namesIn(const Installation& place, const QString& folder)
{
    return QDir(place.path(u"work/"_s + folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

/// Takes away all programs but these while it lives.
class OnlyPrograms
{
public:
    OnlyPrograms(const Installation& place, const QStringList& names)
        : before(qgetenv("PATH"))
    {
        QDir().mkpath(place.path(u"few"_s));
        for (const QString& name : names) {
            QFile::link(u"/usr/bin/"_s + name, place.path(u"few/"_s + name));
        }
        qputenv("PATH", place.path(u"few"_s).toLocal8Bit());
    }
    ~OnlyPrograms() { qputenv("PATH", before); }
    OnlyPrograms(const OnlyPrograms&) = delete;
    OnlyPrograms& operator=(const OnlyPrograms&) = delete;

private:
    QByteArray before;
};

constexpr auto makefile = "all: a.o sub/b.o\n"
                          "a.o: a.c\n\t$(CC) -DVALUE=\"$(VALUE)\" -Iinc -c a.c -o a.o\n"
                          "sub/b.o: sub/b.c\n\tcd sub && $(CC) -DB=$(B) -I../inc -c b.c\n"
                          "fail:\n\t@echo going; echo wrong >&2; exit 3\n";

} // namespace

class BuildSystemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void configuresASourceFolder()
    {
        const Installation place;
        place.write(u"work/src/CMakeLists.txt"_s,
                    "cmake_minimum_required(VERSION 3.16)\nproject(x C)\n"
                    "add_library(one STATIC a.c)\ntarget_compile_definitions(one PRIVATE ONE)\n"
                    "if(MORE)\nadd_library(two STATIC a.c)\n"
                    "target_include_directories(two PRIVATE \"${MORE}\")\nendif()\n");
        place.write(u"work/src/a.c"_s, "int a;\n");
        BuildInputs inputs{.cmakeSource = place.path(u"work/src"_s),
                           .cmakeOptions = u"-D 'MORE=x y' -DCMAKE_BUILD_TYPE=None"_s};
        const Answer more(place, inputs);
        QCOMPARE(more.error, QString());
        QCOMPARE(more.database, u"~/out/p.cmake/compile_commands.json"_s);
        QCOMPARE(more.commands.join(u'|'), u"a.c: -DONE|a.c: -I\"~/src/x"_s);
        QCOMPARE(namesIn(place, u"src"_s).join(u' '), u"a.c CMakeLists.txt"_s);
        // What the options of the last time said is forgotten.
        inputs.cmakeOptions.clear();
        QCOMPARE(Answer(place, inputs).commands.join(u'|'), u"a.c: -DONE"_s);
        const OnlyPrograms few(place,
                               {u"cmake"_s, u"make"_s, u"cc"_s, u"gcc"_s, u"as"_s, u"ld"_s, u"ar"_s, u"ranlib"_s});
        const Answer withoutNinja(place, inputs);
        QCOMPARE(withoutNinja.commands.join(u'|'), u"a.c: -DONE"_s);
        QVERIFY(QFile::exists(place.path(u"work/out/p.cmake/Makefile"_s)));
    }

    void recordsABuild()
    {
        const Installation place;
        place.write(u"work/src/Makefile"_s, makefile);
        place.write(u"work/src/a.c"_s, "int a = sizeof(VALUE);\n");
        place.write(u"work/src/sub/b.c"_s, "int b = B;\n");
        BuildInputs inputs{.make = {.command = u"make 'B=4'"_s,
                                    .folder = place.path(u"work/src"_s),
                                    .environment = u"VALUE=int *;CC=gcc\nUNUSED=a=b"_s}};
        const Answer first(place, inputs);
        QCOMPARE(first.error, QString());
        QCOMPARE(first.database, u"~/out/p.bear/compile_commands.json"_s);
        QCOMPARE(first.commands.join(u'|'), u"a.c: -DVALUE=int * -Iinc|b.c: -DB=4 -I../inc"_s);
        const QByteArray record = place.read(u"work/out/p.bear/compile_commands.json"_s);
        // All is built: nothing can be recorded, and the good record stays.
        QVERIFY2(Answer(place, inputs).error.startsWith(u"~/src: nothing was compiled: run \"make clean\" first"_s),
                 qPrintable(Answer(place, inputs).error));
        QCOMPARE(place.read(u"work/out/p.bear/compile_commands.json"_s), record);
        QFile::remove(place.path(u"work/src/a.o"_s));
        const Answer part(place, inputs);
        QCOMPARE(part.commands.size(), 1);
        QCOMPARE(part.notices, u"warning: 1 compilations were recorded, 2 the last time: was a part built already?"_s);
        QCOMPARE(namesIn(place, u"out/p.bear"_s).join(u' '), u"compile_commands.json made-by-prjconv.txt"_s);
    }

    void tellsWhatFails_data()
    {
        const TestRows<BuildInputs, QString> row("inputs", "told");
        row("no lists", {.cmakeSource = u"none"_s}, u"~/none: has no CMakeLists.txt"_s);
        row("broken lists", {.cmakeSource = u"broken"_s}, u"it %s is <wrong>"_s);
        row("nothing compiled", {.cmakeSource = u"src"_s}, u"~/src: cmake has written no compile_commands.json"_s);
        row("own build folder", {.cmakeSource = u"src"_s, .cmakeOptions = u"-DA=1 -B elsewhere"_s},
            u"-B: the source folder has its own field"_s);
        row("quote for cmake", {.cmakeSource = u"src"_s, .cmakeOptions = u"-DA='1"_s},
            u"a quote is not closed in the options for cmake: -DA='1"_s);
        row("failed build", {.make = {u"make fail"_s, u"src"_s, {}}}, u"going\nwrong\n"_s);
        row("its status", {.make = {u"sh -c 'exit 3'"_s, u"src"_s, {}}}, u"bear ended with status 3"_s);
        row("no shell", {.make = {u"true && make"_s, u"src"_s, {}}}, u"~/src: nothing was compiled"_s);
        row("no such command", {.make = {u"no-such-build-tool"_s, u"src"_s, {}}}, u"no-such-build-tool"_s);
        row("no folder", {.make = {u"make"_s, u"gone"_s, {}}}, u"~/gone: is not a folder"_s);
        row("no variable", {.make = {u"make"_s, u"src"_s, u"A=1;=2"_s}}, u"\"=2\" is no variable for the build"_s);
        row("quote for make", {.make = {u"make \"x"_s, u"src"_s, {}}},
            u"a quote is not closed in the build command: make \"x"_s);
        row("without bear", {.make = {.folder = u"src"_s}}, u"Install the package \"bear\"."_s);
        row("without cmake", {.cmakeSource = u"src"_s}, u"Install the package \"cmake\"."_s);
        row("without ninja", {.buildFolder = u"src"_s}, u"Install the package \"ninja-build\"."_s);
    }

    void tellsWhatFails()
    {
        QFETCH(BuildInputs, inputs);
        QFETCH(const QString, told);
        const Installation place;
        place.write(u"work/none/a.c"_s, "");
        place.write(
            u"work/broken/CMakeLists.txt"_s,
            "cmake_minimum_required(VERSION 3.16)\nproject(x NONE)\nmessage(FATAL_ERROR \"it %s is <wrong>\")\n");
        place.write(u"work/src/CMakeLists.txt"_s, "cmake_minimum_required(VERSION 3.16)\nproject(x NONE)\n");
        place.write(u"work/src/Makefile"_s, makefile);
        place.write(u"work/src/build.ninja"_s, "");
        for (QString* folder : {&inputs.make.folder, &inputs.cmakeSource, &inputs.buildFolder}) {
            *folder = folder->isEmpty() ? QString() : place.path(u"work/"_s + *folder);
        }
        std::optional<OnlyPrograms> none;
        if (QByteArray(QTest::currentDataTag()).startsWith("without ")) {
            none.emplace(place, QStringList());
        }
        const Answer answer(place, inputs);
        QVERIFY2(answer.error.contains(told), qPrintable(answer.error));
        QCOMPARE(namesIn(place, u"out"_s).filter(u"bear"_s), QStringList());
    }

    void asksNinja()
    {
        const Installation place;
        place.write(
            u"work/build/build.ninja"_s,
            "rule cc\n command = cc $flags -c $in -o $out\n"
            "rule rsp\n command = cc @$out.rsp -c $in -o $out\n rspfile = $out.rsp\n rspfile_content = -DINRSP=1\n"
            "rule link\n command = cc $in -o $out\n"
            "rule script\n command = sh -c 'cat $in' -c > $out\n"
            "build a.o: cc ../src/a.c\n flags = -DA -I../inc\n"
            "build b.o: rsp ../src/b.c\nbuild prog: link a.o b.o\nbuild text: script ../src/a.c\n");
        const BuildInputs inputs{.buildFolder = place.path(u"work/build"_s)};
        const Answer answer(place, inputs);
        QCOMPARE(answer.error, QString());
        QCOMPARE(answer.database, u"~/out/p.ninja/compile_commands.json"_s);
        QCOMPARE(answer.commands.join(u'|'), u"a.c: -DA -I../inc|b.c: -DINRSP=1"_s);
        QCOMPARE(namesIn(place, u"build"_s).join(u' '), u"build.ninja"_s);
        place.write(u"work/build/build.ninja"_s, "rule cc\n command = cc\nbuild a.o: nothing\n");
        QVERIFY2(Answer(place, inputs).error.contains("build.ninja:3: unknown build rule 'nothing'"_L1),
                 qPrintable(Answer(place, inputs).error));
        // What the build tool has written itself is better.
        place.write(u"work/build/compile_commands.json"_s, "[]");
        QCOMPARE(Answer(place, inputs).database, u"~/build/compile_commands.json"_s);
        const Answer other(place, {.buildFolder = place.path(u"work/out"_s)});
        QVERIFY2(other.error.startsWith("~/out: has neither a compile_commands.json nor a build.ninja"_L1),
                 qPrintable(other.error));
        place.write(u"work/out/CMakeCache.txt"_s, "");
        const QString configured = Answer(place, {.buildFolder = place.path(u"work/out"_s)}).error;
        QVERIFY2(configured.contains("-DCMAKE_EXPORT_COMPILE_COMMANDS=ON ~/out"_L1), qPrintable(configured));
    }

    void touchesNoForeignFolder()
    {
        const Installation place;
        place.write(u"work/src/build.ninja"_s, "rule cc\n command = cc -c x\nbuild a.o: cc a.c\n");
        place.write(u"work/out/p.ninja/mine"_s, "precious");
        const Answer answer(place, {.buildFolder = place.path(u"work/src"_s)});
        QVERIFY2(answer.error.startsWith("~/out/p.ninja: is there already and was not made by this program"_L1),
                 qPrintable(answer.error));
        QCOMPARE(namesIn(place, u"out/p.ninja"_s).join(u' '), u"mine"_s);
    }
};

KOVRA_TEST(BuildSystemsTest)
#include "BuildSystemsTest.moc"

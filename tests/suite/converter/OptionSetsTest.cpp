// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto wholeProject = R"(VersionTag 45
StartProjectMarker
name=p
sourceDir=%1/src
outputDir=%1/p.out
messagePersonality=%1/m.p_s
analyserPersonality=%1/p.options.p_a
compilerPersonality=default string
*project=ORVCPP
a.cpp
EndContainedFilesMarker
StartSubProjectMarker
StartProjectMarker
name=deep
sourceDir=%1/src/deep
outputDir=%1/p.out/deep
messagePersonality=inherit string
analyserPersonality=inherit string
compilerPersonality=inherit string
ü x.cpp
EndContainedFilesMarker
EndSubProjectMarker
EndOfProjectFile
)";

} // namespace

/// Which sources share what, and what becomes of the rest.
class OptionSetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsOneSetInOneFile()
    {
        const ConvertedProject project;
        project.writeDatabase(R"([{"file": "src/a.cpp", "command": "c++ -DA -Ii -c src/a.cpp"},
                                  {"file": "/gone.cpp", "command": "c++ -DA -Ii -DB -c /gone.cpp"},
                                  {"file": "src/deep/ü x.cpp", "command": "c++ -DA -Ii -c 'src/deep/ü x.cpp'"}])");
        const QStringList personalities{u"--message-personality"_s,
                                        project.work(u"m.p_s"_s),
                                        u"--analyser-personality"_s,
                                        project.work(u"t.p_a"_s),
                                        u"--compiler-personality"_s,
                                        u""_s,
                                        u""_s};
        const ProgramResult result = project.convertDatabase(personalities);
        QVERIFY2(
            result.output.contains("2 source files, 1 sub-project, 1 set of options, 1 include folder, 1 define"_L1),
            qPrintable(result.output + result.errors));
        QCOMPARE(QString::fromUtf8(project.readLines(u"work/p.prj"_s)),
                 QString::fromUtf8(wholeProject).arg(project.path(u"work"_s)));
        QVERIFY(!QFile::exists(project.work(u"p.options"_s)));
        QVERIFY(project.readLines(u"work/p.options.p_a"_s)
                    .contains("\n-via \"" + project.work(u"t.p_a"_s).toUtf8() + "\"\n"));
        QCOMPARE(project.optionsOf(u"a.cpp"_s), (QStringList{u"-d A"_s, u"-i \"~/i\""_s}));
    }

    void givesEachSourceItsOwn_data()
    {
        const TestRows<QString, QString, QString, QString> row("first", "second", "ofFirst", "ofSecond");
        row("conflicting defines", u"-DSIZE=1 -DALL"_s, u"-DSIZE=2 -DALL"_s, u"-d ALL|-d SIZE=1"_s,
            u"-d ALL|-d SIZE=2"_s);
        row("common start of the folders", u"-I/a -I/b -I/c"_s, u"-I/a -I/x -I/c"_s, u"-i \"/a\"|-i \"/b\"|-i \"/c\""_s,
            u"-i \"/a\"|-i \"/x\"|-i \"/c\""_s);
        row("kinds stay in order", u"-I/a -I/b -isystem /s"_s, u"-I/a -isystem /s"_s,
            u"-i \"/a\"|-i \"/b\"|*orv folder=system|-i \"/s\""_s, u"-i \"/a\"|*orv folder=system|-i \"/s\""_s);
        row("folder that comes twice", u"-I/a -I/b -I/a"_s, u"-I/a"_s, u"-i \"/a\"|-i \"/b\"|-i \"/a\""_s,
            u"-i \"/a\""_s);
        // Of commands that begin alike the words are found once.
        row("a word that goes on", u"-DA=%1 -DB"_s.arg(QString(80, u'a')), u"-DA=%1 -DBC"_s.arg(QString(80, u'a')),
            u"-d A=%1|-d B"_s.arg(QString(80, u'a')), u"-d A=%1|-d BC"_s.arg(QString(80, u'a')));
        row("blanks and quotes after the same start", u"-DA  -DB=1 -DC"_s, u"-DA  -DB='1 2'"_s, u"-d A|-d B=1|-d C"_s,
            u"-d A|-d B=1 2"_s);
        row("one has nothing", u"-DA"_s, u""_s, u"-d A"_s, u""_s);
        row("define and undefine", u"-DA -UA"_s, u"-UA -DA"_s, u"*orv undefine=A"_s, u"-d A"_s);
        row("forced includes", u"-include a.h -include b.h"_s, u"-include b.h -include a.h"_s,
            u"-fi \"~/a.h\"|-fi \"~/b.h\""_s, u"-fi \"~/b.h\"|-fi \"~/a.h\""_s);
        row("standards", u"-std=c++17 -m32"_s, u"-std=c++20 -m64"_s, u"*orv standard=c++17|*orv target=-m32"_s,
            u"*orv standard=c++20|*orv target=-m64"_s);
    }

    void givesEachSourceItsOwn()
    {
        QFETCH(const QString, first);
        QFETCH(const QString, second);
        const ConvertedProject project;
        project.writeCommands({u"c++ %1 -c a.cpp"_s.arg(first), u"c++ %1 -c b.cpp"_s.arg(second)});
        const ProgramResult result = project.convertDatabase();
        QVERIFY2(result.output.contains("2 sets of options"_L1), qPrintable(result.output + result.errors));
        const auto sorted = [&](const QString& file) {
            QStringList options = project.optionsOf(file);
            // What is shared comes first; among macros the order says nothing.
            const auto end = std::find_if(options.begin(), options.end(),
                                          [](const QString& line) { return !line.startsWith("-d "_L1); });
            std::sort(options.begin(), end);
            return options.join(u'|');
        };
        QTEST(sorted(u"a.cpp"_s), "ofFirst");
        QTEST(sorted(u"b.cpp"_s), "ofSecond");
        QVERIFY(project.partOf(u"a.cpp"_s).outputDir != project.partOf(u"b.cpp"_s).outputDir);
    }

    void keepsASourceThatIsBuiltTwice()
    {
        const ConvertedProject project;
        project.writeDatabase(R"([
            {"file": "s/a.c", "command": "cc -DSTATIC -c s/a.c", "output": "CMakeFiles/one.dir/s/a.c.o"},
            {"file": "s/a.c", "command": "cc -DSHARED -c s/a.c -o CMakeFiles/two.dir/s/a.c.o"},
            {"file": "s/a.c", "command": "cc -DSHARED -c s/a.c -o CMakeFiles/three.dir/s/a.c.o"},
            {"file": "s/b.c", "command": "cc -DSHARED -c s/b.c -o sub/four.so.p/b.c.o"},
            {"file": "c.c", "command": "cc -DSHARED -c c.c"}])");
        const ProgramResult result = project.convertDatabase();
        QVERIFY2(result.output.contains("1 file is listed more than once"_L1), qPrintable(result.output));
        QStringList told;
        for (const ConvertedProject::Part& part : project.parts()) {
            told += part.name + u": "_s + part.files.join(u' ') + u' ' + project.options(part.analyser).constLast();
        }
        told.sort();
        QCOMPARE(told, (QStringList{u"four.so/s: b.c -d SHARED"_s, u"one/s: a.c -d STATIC"_s, u"p: c.c -d SHARED"_s,
                                    u"two/s: a.c -d SHARED"_s}));
    }

    void keepsOutputsApart()
    {
        const ConvertedProject project;
        project.writeCommands({u"cc -c x/a.c"_s, u"cc -c y/a.c"_s, u"cc -c y/b.c"_s});
        QCOMPARE(project.convertDatabase({u"--options"_s, u""_s}).status, 0);
        const QList<ConvertedProject::Part> parts = project.parts();
        QCOMPARE(parts.size(), 2);
        QCOMPARE(parts[0].files, (QStringList{u"x/a.c"_s, u"y/b.c"_s}));
        QCOMPARE(parts[1].files, QStringList{u"y/a.c"_s});
        QVERIFY(parts[0].outputDir != parts[1].outputDir);
    }

    void namesPartsTheSameAgain()
    {
        const ConvertedProject project;
        project.writeCommands({u"cc -DA -c a.c"_s, u"cc -DB -c b.c"_s});
        QCOMPARE(project.convertDatabase().status, 0);
        const ConvertedProject::Part before = project.partOf(u"b.c"_s);
        project.writeCommands({u"cc -DA -c a.c"_s, u"cc -DZ -c z.c"_s, u"cc -DB -c b.c"_s});
        QCOMPARE(project.convertDatabase().status, 0);
        QCOMPARE(project.partOf(u"b.c"_s).outputDir, before.outputDir);
        QCOMPARE(project.partOf(u"b.c"_s).analyser, before.analyser);
    }

    void addsWhatTheUserWants()
    {
        const ConvertedProject project;
        project.writeCommands({u"cc -DX=1 -Ii -c a.c"_s});
        const QStringList more{u"--defines"_s, u"X=2; TEXT=a, b"_s, u"--include-folders"_s, u"more;/usr/x"_s};
        const QStringList expected{u"-d X=2"_s, u"-d TEXT=a, b"_s, u"-i \"~/i\""_s, u"-i \"~/more\""_s,
                                   u"-i \"%1\""_s.arg(QFileInfo(u"/usr/x"_s).absoluteFilePath())};
        QCOMPARE(project.convertDatabase(more).status, 0);
        QCOMPARE(project.optionsOf(u"a.c"_s), expected);
        project.write(u"work/list"_s, "a.c\n");
        QCOMPARE(project.convert(QStringList{u"--file-list"_s, u"list"_s} + more).status, 0);
        QCOMPARE(project.optionsOf(u"a.c"_s), expected.mid(0, 2) + expected.mid(3));
    }
};

KOVRA_TEST(OptionSetsTest)
#include "OptionSetsTest.moc"

// SPDX-License-Identifier: MIT
#include "Installation.h"
#include "TestMain.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

ProgramResult convert(const Installation& place, const QStringList& arguments)
{
    return runProgram(QStringLiteral(CONVERTER), arguments, {{u"LC_ALL"_s, u"C.UTF-8"_s}}, place.path(u"work"_s));
}

} // namespace

class ConverterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsARealDatabase()
    {
        const Installation place;
        for (const char* name : {"src/main.c", "src/deep/b.cpp", "src/deep/ü x.c"}) {
            place.write(u"work/"_s + QString::fromUtf8(name), "");
        }
        const QJsonArray entries{
            QJsonObject{{u"directory"_s, u"src"_s},
                        {u"file"_s, u"main.c"_s},
                        {u"command"_s, u"cc -DA=1 -D 'B=x y' -Iinc -I \"sp ace\" -isystem/usr/i -c main.c"_s}},
            QJsonObject{{u"directory"_s, place.path(u"work/src"_s)},
                        {u"file"_s, u"deep/../main.c"_s},
                        {u"arguments"_s, QJsonArray{u"cc"_s, u"-DLOST"_s}}},
            QJsonObject{
                {u"file"_s, u"src/deep/b.cpp"_s},
                {u"arguments"_s, QJsonArray{u"c++"_s, u"-D"_s, u"C\\D"_s, u"-iquote"_s, u"../q"_s, u"-D"_s, u"A=1"_s}}},
            QJsonObject{{u"file"_s, u"src/deep/ü x.c"_s}, {u"arguments"_s, QJsonArray{u"cc"_s}}},
            QJsonObject{{u"file"_s, u"gone.c"_s}, {u"arguments"_s, QJsonArray{u"cc"_s}}},
        };
        place.write(u"work/db.json"_s, QJsonDocument(entries).toJson());
        const QString project = place.path(u"work/p.prj"_s);
        place.write(u"work/p.prj"_s, "old");
        const ProgramResult result =
            convert(place, {u"--compile-commands"_s, u"db.json"_s, u"--output"_s, project, u"--analyser"_s, u"ORVCPP"_s,
                            u"--options"_s, u"sub-projects"_s, u"--message-personality"_s, u"/m.p_s"_s,
                            u"--analyser-personality"_s, u"/t.p_a"_s, u"--compiler-personality"_s, u""_s, u""_s});
        QVERIFY2(result.status == 0, qPrintable(result.errors));
        QVERIFY2(result.output.contains("1 files do not exist and are left out"_L1), qPrintable(result.output));
        const QString work = place.path(u"work"_s);
        const QString expected = QString::fromUtf8(R"(VersionTag 45
StartProjectMarker
name=p
sourceDir=%1/src
outputDir=%1/p.out
messagePersonality=/m.p_s
analyserPersonality=%1/p.options.p_a
compilerPersonality=default string
*project=ORVCPP
main.c
EndContainedFilesMarker
StartSubProjectMarker
StartProjectMarker
name=deep
sourceDir=%1/src/deep
outputDir=%1/p.out/deep
messagePersonality=inherit string
analyserPersonality=inherit string
compilerPersonality=inherit string
b.cpp
ü x.c
EndContainedFilesMarker
EndSubProjectMarker
EndOfProjectFile
)")
                                     .arg(work);
        QCOMPARE(QString::fromUtf8(place.read(u"work/p.prj"_s)), expected);
        QCOMPARE(QString::fromUtf8(place.read(u"work/p.options.p_a"_s)).section(u'\n', 1),
                 u"-via \"/t.p_a\"\n-i \"%1/src/inc\"\n-i \"%1/src/sp ace\"\n-i \"/usr/i\"\n-i \"%2\"\n-d A=1\n"
                 "-d B=x y\n-d C\\D\n"_s.arg(work, place.path(u"q"_s)));
    }

    void readsFoldersAndLists()
    {
        const Installation place;
        for (const char* name : {"src/a.c", "src/b.cpp", "src/build/x.c", "src/.git/y.c", "src/lib/c.c"}) {
            place.write(u"work/"_s + QString::fromLatin1(name), "");
        }
        QFile::link(place.path(u"work/src"_s), place.path(u"work/src/loop"_s));
        place.write(u"work/list.txt"_s, "# sources\nsrc/a.c\r\n\n  src/b.cpp\nsrc/a.c\n");
        const QString project = place.path(u"work/p.prj"_s);
        const auto files = [&](const QStringList& arguments) {
            const ProgramResult result =
                convert(place, arguments + QStringList{u"--output"_s, project, u"--analyser"_s, u"ORVC"_s});
            const QString text = QString::fromUtf8(place.read(u"work/p.prj"_s));
            return result.status != 0
                       ? result.errors
                       : text.section(u"*project=ORVC\n"_s, 1).section(u"\nEnd"_s, 0, 0).replace(u'\n', u' ');
        };
        QCOMPARE(files({u"--source-folder"_s, u"src"_s, u"--exclude"_s, u"build*;.*"_s}), u"a.c lib/c.c"_s);
        QCOMPARE(
            files({u"--source-folder"_s, u"src"_s, u"--extensions"_s, u"cpp;c"_s, u"--exclude"_s, u"?uild;.git;lib"_s}),
            u"a.c b.cpp"_s);
        QCOMPARE(files({u"--file-list"_s, u"list.txt"_s}), u"a.c b.cpp"_s);
        QCOMPARE(files({u"--file-list"_s, u"list.txt"_s, u"--own-language"_s, u"1"_s, u"--paths"_s, u"absolute"_s}),
                 place.path(u"work/src/a.c"_s));
    }

    void refusesBadInput_data()
    {
        QTest::addColumn<QByteArray>("database");
        QTest::addColumn<QString>("output");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("says");
        const auto row = [](const char* name, const QByteArray& database, const QString& says) {
            QTest::newRow(name) << database << u"p.prj"_s << 1 << says;
        };
        row("broken", "[\n  {\"file\": \"a.c\",}\n]", u"db.json:2:18: "_s);
        row("empty", "", u"db.json:1:1: "_s);
        row("truncated", "[{\"file\": \"a.c\"}", u"db.json:1:"_s);
        row("binary", QByteArray("\0\1\2", 3), u"db.json:1:1: "_s);
        row("not an array", "{\"file\": \"a.c\"}", u"must hold a JSON array"_s);
        row("entry without file", "[{\"file\": \"a.c\"}, {\"directory\": \"/\"}]", u"entry 2 has no \"file\""_s);
        row("entry that is no object", "[3]", u"entry 1 is not an object"_s);
        row("nothing left", "[{\"file\": \"gone.c\"}]", u"no source file is left"_s);
        row("line break in a define", R"([{"file": "a.c", "arguments": ["cc", "-DA=1\nB"]}])", u"holds a line break"_s);
        row("a folder", R"([{"file": "."}])", u"no source file is left"_s);
        row("empty entry", "[{}]", u"db.json: entry 1 has"_s);
        row("placeholder in a name", "[{\"file\": \"%2=/a.c\"}]", u"/%2=: the "_s);
        row("line break in a name", "[{\"file\": \"x\\ny.c\"}]", u"the name holds a line break"_s);
        QTest::newRow("unwritable") << QByteArray("[{\"file\": \"a.c\"}]") << u"db.json/p.prj"_s << 1
                                    << u"db.json/p.prj: can not be written"_s;
        QTest::newRow("no output") << QByteArray("[]") << QString() << 2
                                   << u"--output is missing; see prjconv --help"_s;
    }

    void refusesBadInput()
    {
        QFETCH(const QByteArray, database);
        QFETCH(const QString, output);
        QFETCH(const int, status);
        QFETCH(const QString, says);
        const Installation place;
        place.write(u"work/a.c"_s, "");
        place.write(u"work/x\ny.c"_s, "");
        place.write(u"work/%2=/a.c"_s, "");
        place.write(u"work/db.json"_s, database);
        place.write(u"work/p.prj"_s, "old");
        const ProgramResult result = convert(place, {u"--compile-commands"_s, u"db.json"_s, u"--analyser"_s, u"ORVC"_s,
                                                     u"--defines"_s, u"X"_s, u"--output"_s, output});
        QCOMPARE(result.status, status);
        QVERIFY2(result.errors.contains(says), qPrintable(result.errors));
        QCOMPARE(place.read(u"work/p.prj"_s), QByteArray("old"));
        QVERIFY(!QFile::exists(place.path(u"work/p.options.p_a"_s)));
    }

    void keepsAForeignConfigurationFile()
    {
        const Installation place;
        place.write(u"work/a.c"_s, "");
        place.write(u"work/list"_s, "a.c\n");
        place.write(u"work/p.options.p_a"_s, "mine\n");
        const ProgramResult result = convert(place, {u"--file-list"_s, u"list"_s, u"--analyser"_s, u"ORVC"_s,
                                                     u"--defines"_s, u"X"_s, u"--output"_s, u"p.prj"_s});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains("was not written by this program"_L1), qPrintable(result.errors));
        QCOMPARE(place.read(u"work/p.options.p_a"_s), QByteArray("mine\n"));
        QVERIFY(!QFile::exists(place.path(u"work/p.prj"_s)));
    }

    void copesWithThousandsOfEntries()
    {
        const Installation place;
        QJsonArray entries;
        for (int i = 0; i < 5000; ++i) {
            const QString file = u"src/d%1/f%2.c"_s.arg(i % 50).arg(i);
            if (i % 10 != 0) {
                place.write(u"work/"_s + file, "");
            }
            entries.append(QJsonObject{{u"directory"_s, place.path(u"work"_s)},
                                       {u"file"_s, i % 2 == 0 ? file : place.path(u"work/"_s + file)},
                                       {u"command"_s, u"cc -DNDEBUG -Iinc/%1 -c "_s.arg(i % 100) + file}});
        }
        place.write(u"work/db.json"_s, QJsonDocument(entries).toJson());
        QElapsedTimer timer;
        timer.start();
        const ProgramResult result = convert(place, {u"--compile-commands"_s, u"db.json"_s, u"--output"_s, u"p.prj"_s,
                                                     u"--analyser"_s, u"ORVC"_s, u"--options"_s, u"sub-projects"_s});
        // Far above what it takes, also under a sanitizer: what this catches is work that grows with the square.
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY2(result.output.contains("4500 source files, 45 sub-projects, 90 include folders, 1 defines"_L1),
                 qPrintable(result.output + result.errors));
        QCOMPARE(place.read(u"work/p.prj"_s).count(".c\n"), 4500);
    }
};

KOVRA_TEST(ConverterTest)
#include "ConverterTest.moc"

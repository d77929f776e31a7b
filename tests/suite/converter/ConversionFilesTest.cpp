// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QStringList& twoSets()
{
    static const QStringList commands{u"cc -DA -c a.c"_s, u"cc -DB -c b.c"_s};
    return commands;
}

/// Every file below the work folder with its contents.
QMap<QString, QByteArray> snapshot(const Installation& place)
{
    QMap<QString, QByteArray> result;
    QDirIterator files(place.path(u"work"_s), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next();
        result.insert(name, place.read(name));
    }
    return result;
}

} // namespace

/// What is written, and what is left when that fails.
class ConversionFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesBadInput_data()
    {
        const TestRows<QByteArray, QString> row("database", "says");
        row("broken", "[\n  {\"file\": \"a.c\",}\n]", u"db.json:2:18: "_s);
        row("empty", "", u"db.json:1:1: "_s);
        row("truncated", "[{\"file\": \"a.c\"}", u"db.json:1:17: "_s);
        row("binary", QByteArray("\0\1\2", 3), u"db.json:1:1: "_s);
        row("something behind it", "[]\n[]", u"db.json:2:1: "_s);
        row("UTF-16", QByteArray("\xFF\xFE[\0]\0", 6), u"is written in UTF-16"_s);
        row("another kind of file", "<Project/>\n", u"must hold a JSON array"_s);
        row("not an array", "{\"file\": \"a.c\"}", u"must hold a JSON array"_s);
        row("entry without file", "[{\"file\": \"a.c\"},\n{\"directory\": \"/\"}]",
            u"db.json:2: entry 2 has no \"file\""_s);
        row("entry that is no object", "[\n3]", u"entry 1 is not an object"_s);
        row("command that is no text", "[{\"file\": \"a.c\",\n\"command\": 3}]",
            u"db.json:1: entry 1 has a \"command\" of the wrong type"_s);
        row("arguments that are no list", R"([{"file": "a.c", "arguments": "cc -c"}])",
            u"\"arguments\" of the wrong type"_s);
        row("argument that is no text", R"([{"file": "a.c", "arguments": ["cc", 1]}])",
            u"\"arguments\" of the wrong"_s);
        row("argument that is a list", R"([{"file": "a.c", "arguments": ["cc", ["-c"]]}])",
            u"\"arguments\" of the wrong"_s);
        row("file that is an object", R"([{"file": {"a": "c"}}])", u"\"file\" of the wrong type"_s);
        row("directory that is a list", R"([{"directory": ["a"], "file": "a.c"}])",
            u"\"directory\" of the wrong type"_s);
        row("nested without end", QByteArray("[{\"x\": ") + QByteArray(1000000, '['), u"nested too deeply"_s);
        row("nothing left", "[{\"file\": \"gone.c\"}]", u"no source file is left"_s);
        row("line break in a define", R"([{"file": "a.c", "arguments": ["cc", "-DA=1\nB"]}])", u"holds a line break"_s);
        row("a folder", R"([{"file": "."}])", u"no source file is left"_s);
#ifdef Q_OS_UNIX
        row("line break in a name", "[{\"file\": \"x\\ny.c\"}]", u"the name holds a line break"_s);
#endif
    }

    void refusesBadInput()
    {
        const auto [database, says] = fetched<QByteArray, QString>("database", "says");
        const ConvertedProject project;
        project.write(u"work/a.c"_s, "");
        if (database.contains("x\\ny.c")) {
            project.write(u"work/x\ny.c"_s, "");
        }
        project.write(u"work/p.prj"_s, "old");
        project.write(u"work/db.json"_s, database);
        const auto before = snapshot(project);
        const ProgramResult result = project.convertDatabase({u"--defines"_s, u"X"_s});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(says), qPrintable(result.errors));
        QCOMPARE(snapshot(project), before);
    }

    void refusesWrongArguments_data()
    {
        const TestRows<QString, QString, int> row("arguments", "says", "status");
        row("nothing to convert", u""_s, u"give one of --compile-commands"_s, 2);
        row("two things", u"--file-list a --source-folder b"_s, u"give one of --compile-commands"_s, 2);
        row("stray", u"--file-list db.json what"_s, u"unexpected argument \"what\""_s, 2);
        row("paths", u"--file-list db.json --paths x"_s, u"--paths wants"_s, 2);
        row("compiler macros", u"--file-list db.json --compiler-macros yes"_s, u"--compiler-macros wants 0 or 1"_s, 2);
        row("options", u"--file-list db.json --options x"_s, u"--options does not know \"x\""_s, 2);
        row("a name that no value can hold", u"--file-list list --name a=b"_s, u"a=b: the name holds \"=\""_s, 1);
    }

    void refusesWrongArguments()
    {
        const auto [arguments, says] = fetched<QString, QString>("arguments", "says");
        const ConvertedProject project;
        project.write(u"work/a.c"_s, "");
        project.write(u"work/list"_s, "a.c\n");
        const ProgramResult result = project.convert(arguments.split(u' ', Qt::SkipEmptyParts));
        QVERIFY2(result.errors.contains(says), qPrintable(result.errors));
        QTEST(result.status, "status");
    }

    void worksWithOddNames()
    {
        const ConvertedProject project;
        QStringList names{u":colon.c"_s, u"a=b.c"_s,      u"eq=folder/x.c"_s, u"*star.c"_s, u" blank .c"_s,
                          u"xMarker"_s,  u"имя/файл.c"_s, u"quo\"te.c"_s,     u"%2.c"_s,    u"-D.c"_s};
#ifdef Q_OS_WIN
        names.removeIf([](const QString& name) { return name.contains(QRegularExpression(u"[:*\"]"_s)); });
#endif
        QJsonArray entries;
        for (const QString& name : std::as_const(names)) {
            project.write(u"work/s/"_s + name, "");
            entries.append(QJsonObject{{u"file"_s, u"s/"_s + name}});
        }
        names.sort();
        project.write(u"work/db.json"_s, QJsonDocument(entries).toJson());
        for (const auto& options : {u"sub-projects"_s, u""_s}) {
            QCOMPARE(project.convertDatabase({u"--options"_s, options}).errors, QString());
            QStringList files;
            for (const ConvertedProject::Part& part : project.parts()) {
                for (const QString& file : part.files) {
                    QVERIFY2(!file.startsWith(u':'), qPrintable(file));
                    files += QDir::cleanPath(part.sourceDir + u'/' + file).mid(project.work(u"s/"_s).size());
                }
            }
            files.sort();
            QCOMPARE(files, names);
        }
    }

    void tellsWhatIsNoText()
    {
        const ConvertedProject project;
        project.writeDatabase("[{\"file\": \"\xE4.c\"}, {\"file\": \"a.c\", \"command\": \"cc -DA=\xE4 a.c\"}]");
        const ProgramResult result = project.convertDatabase({u"--options"_s, u"keep-missing"_s});
        QVERIFY2(result.output.contains("is not UTF-8, and some letters are lost, in 2 places"_L1),
                 qPrintable(result.output));
    }

    void leavesAloneWhatIsTheSame()
    {
        const ConvertedProject project;
        project.writeCommands({u"cc -DA -F x -c a.c"_s, u"cc -DB -c b.c"_s});
        QCOMPARE(project.convertDatabase({u"--compiler-macros"_s, u"1"_s}).status, 0);
        // An analyser notes when it was here.
        QByteArray text = project.read(u"work/p.prj"_s);
        project.write(u"work/p.prj"_s, text.replace("*project", "*lastAnalysis=2\n*project"));
        const QDateTime old = QDateTime::currentDateTime().addDays(-1);
        const QStringList files = snapshot(project).keys();
        for (const QString& file : files) {
            project.write(QDir(project.path(u""_s)).relativeFilePath(file), project.read(file), old);
        }
        QCOMPARE(project.convertDatabase({u"--compiler-macros"_s, u"1"_s}).status, 0);
        for (const QString& file : files) {
            QVERIFY2(QFileInfo(file).lastModified() < old.addSecs(10), qPrintable(file));
        }
    }

    void keepsTheUsersPart()
    {
        const ConvertedProject project;
        project.writeCommands(twoSets());
        QCOMPARE(project.convertDatabase().status, 0);
        const QString part = project.partOf(u"b.c"_s).analyser;
        const QByteArray mine = "-d MINE=\xFF\n";
        project.write(u"work/p.options.p_a"_s, project.read(u"work/p.options.p_a"_s) + mine);
        project.write(u"work/p.options/"_s + QFileInfo(part).fileName(), project.read(part) + mine);
        const QByteArray before = project.read(part);
        QCOMPARE(project.convertDatabase({u"--defines"_s, u"ALL"_s}).status, 0);
        QVERIFY(project.read(u"work/p.options.p_a"_s).contains("-d ALL\n"));
        QVERIFY(project.read(u"work/p.options.p_a"_s).endsWith(mine));
        QVERIFY(project.read(part).endsWith(mine));
        QVERIFY(project.read(part) != before);
        // Without a use it stays, and the user is told; what holds nothing of theirs goes.
        project.writeCommands(twoSets().first(1));
        const ProgramResult result = project.convertDatabase();
        QVERIFY2(result.output.contains(u"nothing uses "_s + part), qPrintable(result.output));
        QCOMPARE(QDir(project.work(u"p.options"_s)).entryList(QDir::Files), QStringList{QFileInfo(part).fileName()});
    }

    void writesAllOrNothing_data()
    {
        const TestRows<QByteArray, QString, QString> row("prepare", "start", "says");
        const QString failed = u"can not be written ("_s;
        row("project is a folder", "remove p.prj; folder p.prj", {}, failed);
        row("options folder is a file", "remove p.options; write p.options", {}, failed);
        row("options file of the user", "write p.options.p_a mine", {}, u"was not written by this program"_s);
#ifdef Q_OS_WIN
        // As another program may have them open.
        for (const char* name : {"p.prj", "p.options.p_a", "p.options\\conversion.log"}) {
            row(name, {}, u"hold "_s + QLatin1StringView(name), QLatin1StringView(name) + u": can not be "_s);
        }
#else
        row("full disk", {}, u"trap '' XFSZ; ulimit -f 0"_s, failed);
        row("full disk at the end", {}, u"trap '' XFSZ; ulimit -f 1"_s, failed);
        row("lost folder", {}, u"mkdir x; cd x; rmdir ../x"_s, failed);
#endif
    }

    void writesAllOrNothing()
    {
        const auto [prepare, start, says] = fetched<QByteArray, QString, QString>("prepare", "start", "says");
        const ConvertedProject project;
        project.writeCommands(twoSets() + QStringList{u"cc -F x -c c.c"_s});
        QCOMPARE(project.convertDatabase().status, 0);
        QStringList many{u"cc -F y -c c.c"_s};
        for (int i = 0; i < 100; ++i) {
            many += u"cc -DN=%1 -c n%1.c"_s.arg(i);
        }
        project.writeCommands(many);
        runProgram(project.writeChild(u"prepare"_s, prepare), {}, {}, project.work({}));
        const auto before = snapshot(project);
        const ProgramResult result = convert(project, start);
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(says), qPrintable(result.errors));
        QCOMPARE(snapshot(project), before);
    }

private:
    /// In a shell that has done this before, or while somebody holds a file.
    static ProgramResult convert(const ConvertedProject& project, const QString& start)
    {
        if (start.isEmpty() || start.startsWith("hold "_L1)) {
            [[maybe_unused]] const HeldFile held(start.isEmpty() ? QString() : project.work(start.mid(5)));
            return project.convertDatabase();
        }
        const QString output = start.contains(u"rmdir"_s) ? u"p.prj"_s : project.work(u"p.prj"_s);
        return runProgram(u"/bin/sh"_s,
                          {u"-c"_s,
                           start + u"; exec \"$0\" --compile-commands \"$1/db.json\" --output \"$2\" --analyser ORVC"_s,
                           QStringLiteral(CONVERTER), project.work({}), output},
                          {{u"LC_ALL"_s, u"C.UTF-8"_s}}, project.work({}));
    }
};

KOVRA_TEST(ConversionFilesTest)
#include "ConversionFilesTest.moc"

// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Files = QMap<QString, QByteArray>;

// The kinds of folders in the order in which they are searched.
int searchOrder(const QString& kind)
{
    return int(QStringList{u"quote"_s, {}, u"system"_s, u"after"_s}.indexOf(kind));
}

// What the lines of a configuration file mean to the analyser below the suite's.
QStringList analyserArguments(const QStringList& lines)
{
    static const QRegularExpression quoted(u"\"(.*)\"$"_s);
    QStringList arguments;
    QMap<int, QStringList> folders;
    QString kind;
    for (const QString& line : lines) {
        const QString path = quoted.match(line).captured(1);
        if (line.startsWith("-d "_L1)) {
            arguments += u"-D"_s + line.mid(3);
        } else if (line.startsWith("*orv undefine="_L1)) {
            arguments += u"-U"_s + line.section(u'=', 1);
        } else if (line.startsWith("*orv folder="_L1)) {
            kind = line.section(u'=', 1);
        } else if (line.startsWith("-i "_L1)) {
            folders[searchOrder(kind)] += u"-I"_s + path;
            kind.clear();
        } else if (line.startsWith("-fi "_L1) || line.startsWith("*orv macros="_L1)) {
            arguments += u"--include="_s + path;
        } else if (line.startsWith("*orv standard="_L1)) {
            arguments += u"--std="_s + line.section(u'=', 1).replace(u"gnu"_s, u"c"_s);
        } else if (line.startsWith("*orv language="_L1)) {
            arguments += u"--language="_s + line.section(u'=', 1);
        }
    }
    for (const QStringList& ofKind : std::as_const(folders)) {
        arguments += ofKind;
    }
    return arguments;
}

QStringList findings(const QStringList& arguments, const QString& source, const QString& folder)
{
    const QStringList all =
        QStringList{u"--quiet"_s, u"--enable=warning,style"_s, u"--template={file}:{line}:{id}"_s} + arguments;
    const ProgramResult result = runProgram(u"cppcheck"_s, all + QStringList{source}, {}, folder);
    QStringList lines = result.errors.split(u'\n', Qt::SkipEmptyParts);
    lines.sort();
    return lines;
}

} // namespace

/// The analysis of a project finds what the analysis of its build finds.
class FindingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(u"cppcheck"_s).isEmpty()) {
            QSKIP("needs cppcheck");
        }
    }

    void findsTheSame_data()
    {
        const TestRows<Files, QStringList, QStringList> row("files", "commands", "perFile");
        const QByteArray usesSize = "int f() { int v[2] = {0, 1}; return v[SIZE]; }\n";
        row("conflicting defines and order of folders",
            {{u"a.cpp"_s, usesSize},
             {u"b.cpp"_s, usesSize},
             {u"c.cpp"_s, "#include \"n.h\"\nint h() { int v[2] = {0, 1}; return v[N]; }\n"},
             {u"d.cpp"_s, "#include \"n.h\"\nint k() { int v[2] = {0, 1}; return v[N]; }\n"},
             {u"x/n.h"_s, "#define N 1\n"},
             {u"y/n.h"_s, "#define N 2\n"}},
            {u"c++ -DSIZE=1 -c a.cpp"_s, u"c++ -DSIZE=2 -c b.cpp"_s, u"c++ -Ix -Iy -c c.cpp"_s,
             u"c++ -Iy -Ix -c d.cpp"_s},
            {u"-DSIZE=1"_s, u"-DSIZE=2"_s, u"-Ix -Iy"_s, u"-Iy -Ix"_s});
        row("response files and forced includes",
            {{u"a.cpp"_s, usesSize},
             {u"b.cpp"_s, "#include \"n.h\"\nint h() { int v[2] = {0, 1}; return v[N + SIZE]; }\n"},
             {u"c.c"_s, "int* k(void) { void* class = 0; return (int*)class; }\n"},
             {u"r.rsp"_s, "-Iy -include force.h"},
             {u"force.h"_s, "#define SIZE 2\n"},
             {u"y/n.h"_s, "#define N 0\n"}},
            {u"c++ @r.rsp -c a.cpp"_s, u"c++ -DSIZE=1 -USIZE -DSIZE=0 -Iy -c b.cpp"_s, u"cc -std=c99 -c c.c"_s},
            {u"-Iy --include=force.h"_s, u"-DSIZE=0 -Iy"_s, u"--std=c99"_s});
        row("written for Windows",
            {{u"a.cpp"_s, usesSize},
             {u"b.cpp"_s, "#ifdef _MT\nint h() { int v[2] = {0, 1}; return v[2]; }\n#endif\n#include \"n.h\"\n"},
             {u"c.cpp"_s, "#ifdef _MT\nint h() { int v[2] = {0, 1}; return v[2]; }\n#endif\n"},
             {u"inc/n.h"_s, "inline int n() { int v[1]; return v[0]; }\n"}},
            {u"cl.exe /nologo /DSIZE=2 /c a.cpp"_s, u"clang-cl /MD /I inc /c b.cpp"_s, u"cl.exe /c c.cpp"_s},
            {u"-DSIZE=2"_s, u"-D_MT=1 -D_DLL=1 -Iinc"_s, u""_s});
    }

    void findsTheSame()
    {
        QFETCH(const Files, files);
        QFETCH(const QStringList, commands);
        QFETCH(const QStringList, perFile);
        const ConvertedProject project;
        for (auto file = files.cbegin(); file != files.cend(); ++file) {
            project.write(u"work/"_s + file.key(), file.value());
        }
        QJsonArray entries;
        for (const QString& command : commands) {
            entries.append(QJsonObject{{u"directory"_s, project.path(u"work"_s)},
                                       {u"file"_s, command.section(u' ', -1)},
                                       {u"command"_s, command}});
        }
        project.writeDatabase(QJsonDocument(entries).toJson());
        const ProgramResult result = project.convertDatabase();
        QVERIFY2(result.status == 0, qPrintable(result.errors));
        qsizetype found = 0;
        for (qsizetype i = 0; i < commands.size(); ++i) {
            const QString source = commands[i].section(u' ', -1);
            const QStringList expected =
                findings(perFile[i].split(u' ', Qt::SkipEmptyParts), source, project.path(u"work"_s));
            const QStringList lines = project.options(project.partOf(source).analyser);
            QStringList ours = findings(analyserArguments(lines), project.work(source), project.path(u"work"_s));
            QCOMPARE(ours.replaceInStrings(project.path(u"work/"_s), QString()), expected);
            found += expected.size();
        }
        QVERIFY(found > 0);
    }
};

KOVRA_TEST(FindingsTest)
#include "FindingsTest.moc"

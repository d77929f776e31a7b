// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

/// What becomes part of a project, and what is told of the rest.
class SourceChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesOut_data()
    {
        const TestRows<QString, QString> row("patterns", "left");
        row("nothing", u""_s, u"deps/a/x.c deps/y.c lib/deps/z.c lib/x_test.c src/main.c src/X.c"_s);
        row("path", u"deps/*"_s, u"lib/x_test.c src/main.c src/X.c"_s);
        row("name of a folder", u"deps/"_s, u"lib/x_test.c src/main.c src/X.c"_s);
        row("names of files", u"*_test.c;?.c"_s, u"src/main.c"_s);
        row("path of two", u"lib/deps"_s, u"deps/a/x.c deps/y.c lib/x_test.c src/main.c src/X.c"_s);
        row("across folders", u"deps/**/x.c;./src/m*"_s, u"deps/y.c lib/deps/z.c lib/x_test.c src/X.c"_s);
        row("set", u"[!m]*.c"_s, u"src/main.c"_s);
        row("not the folders above", u"work"_s, u"deps/a/x.c deps/y.c lib/deps/z.c lib/x_test.c src/main.c src/X.c"_s);
        row("absolute", u"%1/work/deps;src"_s, u"lib/deps/z.c lib/x_test.c"_s);
        row("from a file", u"src;@%1/work/out.txt"_s, u"lib/deps/z.c"_s);
#ifdef Q_OS_UNIX
        // More than a command line of Windows holds.
        row("very many", QString(u"none/of/these/long/patterns/matches/a.c;"_s).repeated(2500) + u"deps;lib"_s,
            u"src/main.c src/X.c"_s);
#endif
        row("no wildcards of other kinds", u"x+.c;(deps);m.in.c"_s,
            u"deps/a/x.c deps/y.c lib/deps/z.c lib/x_test.c src/main.c src/X.c"_s);
    }

    void leavesOut()
    {
        QFETCH(QString, patterns);
        const ConvertedProject project;
        project.write(u"work/out.txt"_s, "# tests\n*_test.c\r\n\ndeps/?\n deps/y.c \n");
        project.writeCommands(u"deps/a/x.c deps/y.c lib/deps/z.c lib/x_test.c src/main.c src/X.c"_s.split(u' '));
        patterns.replace(u"%1"_s, project.path(u"work"_s).chopped(5));
        const QStringList arguments{u"--exclude"_s, patterns, u"--options"_s, u""_s, u"--paths"_s, u"absolute"_s};
        QCOMPARE(project.convertDatabase(arguments).errors, QString());
        QTEST(project.files().remove(project.path(u"work/"_s)), "left");
    }

    void tellsSourcesFromTheRest()
    {
        const ConvertedProject project;
        project.writeDatabase(
            R"([{"file": "a.c"}, {"file": "B.C"}, {"file": "c.CPP"}, {"file": "d.ixx"}, {"file": "e.c++"},
            {"file": "f.h"}, {"file": "g.HPP"}, {"file": "h.S"}, {"file": "i.asm"}, {"file": "j.rc"}, {"file": "k.cu"},
            {"file": "l.mm"}, {"file": "m.f90"}, {"file": "n.tpl", "command": "c++ -x c++ -c n.tpl"},
            {"file": "o.c", "command": "cc -x assembler-with-cpp -c o.c"},
            {"file": "p.hxx", "command": "c++ -x c++-header -c p.hxx"}])");
        ProgramResult result = project.convertDatabase({u"--options"_s, u""_s});
        for (const char* told : {"3 headers are left out", "3 assembler sources are left out", "1 resource is",
                                 "1 CUDA source is", "1 Objective-C source is", "1 other file is"}) {
            QVERIFY2(result.output.contains(QString::fromLatin1(told)), qPrintable(result.output));
        }
        QCOMPARE(project.files(), u"a.c B.C c.CPP d.ixx e.c++ n.tpl"_s);
        // Each analyser can be given its own language only.
        for (const auto& [analyser, expected] :
             {std::pair{u"ORVC"_s, u"a.c"_s}, {u"ORVCPP"_s, u"B.C c.CPP d.ixx e.c++ n.tpl"_s}}) {
            result = project.convertDatabase(
                {u"--options"_s, u""_s, u"--own-language"_s, u"1"_s, u"--analyser"_s, analyser});
            QCOMPARE(project.files(), expected);
        }
    }

    void searchesFolders()
    {
        const ConvertedProject project;
        for (const char* name : {"src/a.c", "src/A.CPP", "src/b.C", "src/m.cppm", "src/build/x.c", "src/.git/y.c",
                                 "src/lib/c.c", "src/lib/deep/d.cc"}) {
            project.write(u"work/"_s + QString::fromLatin1(name), "");
        }
        QFile::link(project.work(u"src"_s), project.work(u"src/loop"_s));
        const auto files = [&](const QStringList& arguments) {
            const ProgramResult result = project.convert(QStringList{u"--source-folder"_s, u"src"_s} + arguments);
            return result.status == 0 ? project.files() : result.errors;
        };
        QCOMPARE(files({u"--analyser"_s, u"ORVC"_s, u"--exclude"_s, u"build*;.*"_s}), u"a.c lib/c.c"_s);
        QCOMPARE(files({u"--exclude"_s, u"build*;.*;lib/deep"_s}), u"a.c A.CPP b.C lib/c.c m.cppm"_s);
        QCOMPARE(files({u"--extensions"_s, u"cpp;c"_s, u"--exclude"_s, u"?uild;.git;lib"_s}), u"a.c A.CPP"_s);
    }

    void readsLists()
    {
        const ConvertedProject project;
        project.write(u"work/src/a.c"_s, "");
        project.write(u"work/src/b.cpp"_s, "");
        project.write(u"work/src/ä.cpp"_s, "");
        project.write(u"work/list.txt"_s,
                      "\xEF\xBB\xBF# sources\nsrc/a.c\r\n\n  src/b.cpp\nsrc/a.c\nsrc/\xC3\xA4.cpp\n");
        QCOMPARE(project.convert({u"--file-list"_s, u"list.txt"_s}).status, 0);
        QCOMPARE(project.files(), u"a.c b.cpp ä.cpp"_s);
        project.convert({u"--file-list"_s, u"list.txt"_s, u"--own-language"_s, u"1"_s, u"--analyser"_s, u"ORVC"_s,
                         u"--paths"_s, u"absolute"_s});
        QCOMPARE(project.files(), project.work(u"src/a.c"_s));
    }

    void findsTheDatabaseOfAFolder()
    {
        const ConvertedProject project;
        for (const char* folder : {"a", "build-2", "build", "."}) {
            const QString name = QString::fromLatin1(folder);
            project.write(u"work/a.c"_s, "");
            project.writeCommand(u"a.c"_s, u"cc -DIN=%1 -c a.c"_s.arg(name), project.path(u"work"_s));
            project.write(u"work/%1/compile_commands.json"_s.arg(name), project.read(u"work/db.json"_s));
        }
        for (const char* folder : {".", "build", "build-2", "a"}) {
            const ProgramResult result = project.convert({u"--compile-commands"_s, u"."_s});
            QCOMPARE(project.optionsOf(u"a.c"_s), QStringList{u"-d IN="_s + QString::fromLatin1(folder)});
            QCOMPARE(result.output.contains("further databases are not read"_L1), *folder != 'a');
            QVERIFY(QFile::remove(project.work(QString::fromLatin1(folder) + u"/compile_commands.json"_s)));
        }
        const ProgramResult result = project.convert({u"--compile-commands"_s, u"."_s});
        QVERIFY2(result.errors.contains("there is no compile_commands.json in this folder"_L1),
                 qPrintable(result.errors));
    }
};

KOVRA_TEST(SourceChoiceTest)
#include "SourceChoiceTest.moc"

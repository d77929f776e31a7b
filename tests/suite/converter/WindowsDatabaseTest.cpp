// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

/// Databases that were written on Windows, wherever they are read.
class WindowsDatabaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsCommands_data()
    {
        const TestRows<QString, QString, QString> row("directory", "command", "expected");
        row("MSVC", u"C:\\b"_s,
            u"C:\\PROGRA~1\\MSVC\\cl.exe /DA=\\\"x\\\" \"-IC:\\proj\\my inc\" /I..\\up /c C:\\s\\a.cpp"_s,
            u"-d A=\"x\"|-i \"C:/proj/my inc\"|-i \"C:/up\""_s);
        row("quoted compiler", u"C:/b"_s,
            u"\"C:\\Program Files\\LLVM\\clang-cl.exe\" /DA=a\\b -IC:\\i\\ -c C:/s/a.cpp"_s,
            u"-d A=a\\b|-i \"C:/i\""_s);
        row("quotes inside", u"C:/b"_s, u"cl \"/DA=one \"\"two\"\"\" \"/DB=c:\\\\\" /DC=\"x y\" /c C:/s/a.cpp"_s,
            u"-d A=one \"two\"|-d B=c:\\|-d C=x y"_s);
        row("MinGW", u"C:/b"_s,
            u"C:\\mingw64\\bin\\g++.exe -DA -IC:\\proj\\inc -std=gnu++17 -o a.obj -c C:\\s\\a.cpp"_s,
            u"*orv standard=gnu++17|-d A|-i \"C:/proj/inc\""_s);
        row("other case and separators", u"c:\\B"_s, u"cl.exe /Ic:\\I /I\\root /IC:x /c ..\\S\\A.CPP"_s,
            u"-i \"C:/I\"|-i \"C:/root\"|-i \"C:/B/x\""_s);
        row("share", u"\\\\server\\share\\b"_s, u"cl.exe /Ii /I\\\\other\\x\\..\\y /c C:/s/a.cpp"_s,
            u"-i \"/"_s + u"/server/share/b/i\"|-i \"/"_s + u"/other/y\""_s);
        row("command processor", u"C:/b"_s, u"cmd.exe /C \"cl.exe /DA /c C:\\s\\a.cpp\""_s, u"-d A"_s);
        row("told from the file", {}, u"cl /IC:\\i /c C:\\s\\a.cpp"_s, u"-i \"C:/i\""_s);
        row("cross compiler on Linux", u"/b"_s, u"x86_64-w64-mingw32-g++ -DA=\\\"x\\\" -I/C\\:/i -c a.cpp"_s,
            u"-d A=\"x\"|-i \"/C:/i\""_s);
    }

    void readsCommands()
    {
        const auto [directory, command] = fetched<QString, QString>("directory", "command");
        const ConvertedProject project;
        const QString file = command.endsWith("a.cpp"_L1) && directory == "/b"_L1 ? u"a.cpp"_s : u"C:\\s\\a.cpp"_s;
        project.writeCommand(file, command, directory);
        QCOMPARE(project.convertDatabase({u"--options"_s, u"keep-missing"_s}).errors, QString());
        QTEST(project.options(project.work(u"p.options.p_a"_s)).mid(1).join(u'|'), "expected");
    }

    void comparesPathsWithoutCase()
    {
        const ConvertedProject project;
        project.write(u"work/db.json"_s, R"([
            {"directory": "z:\\src", "file": "z:\\src\\lib\\a.cpp", "command": "cl /c z:\\src\\lib\\a.cpp"},
            {"directory": "Z:/src", "file": "Z:/Src/Lib/b.cpp", "command": "cl /c Z:/Src/Lib/b.cpp"},
            {"directory": "z:/src", "file": "Z:/SRC/lib/A.cpp", "command": "cl /c Z:/SRC/lib/A.cpp"},
            {"directory": "Z:/src", "file": "main.C", "command": "cl /c main.C"}])");
        const ProgramResult result = project.convertDatabase({u"--options"_s, u"keep-missing,sub-projects"_s});
        QVERIFY(result.output.contains("1 file is listed more than once"_L1));
        const QList<ConvertedProject::Part> parts = project.parts();
        QCOMPARE(parts.size(), 2);
        QCOMPARE(parts[0].sourceDir, u"Z:/src"_s);
        QCOMPARE(parts[0].files, QStringList{u"main.C"_s});
        QCOMPARE(parts[1].files, (QStringList{u"a.cpp"_s, u"b.cpp"_s}));
    }

    void knowsMicrosoftsMacros()
    {
        const ConvertedProject project;
        const QString compiler = u"\"C:\\VC\\Tools\\MSVC\\14.29.30133\\bin\\Hostx64\\x64\\cl.exe\""_s;
        project.writeCommand(u"C:/b/a.cpp"_s, compiler + u" /std:c++17 /c a.cpp"_s, u"C:/b"_s);
        const ProgramResult result =
            project.convertDatabase({u"--options"_s, u"keep-missing"_s, u"--compiler-macros"_s, u"1"_s});
        QVERIFY2(result.output.contains("is not asked for its macros"_L1), qPrintable(result.output));
        const QStringList macros = project.options(project.partOf(u"a.cpp"_s).compiler);
        for (const auto& macro : {u"-d _MSC_VER=1929"_s, u"-d _WIN64=1"_s, u"-d _MSVC_LANG=201703L"_s}) {
            QVERIFY2(macros.contains(macro), qPrintable(macros.join(u'\n')));
        }
    }
};

KOVRA_TEST(WindowsDatabaseTest)
#include "WindowsDatabaseTest.moc"

// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

/// What the options of one command become.
class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsOptions_data()
    {
        const TestRows<QString, QString> row("command", "expected");
        gnuRows(row);
        pathRows(row);
        launcherRows(row);
        slashRows(row);
    }

    void readsOptions()
    {
        QFETCH(const QString, command);
        const ConvertedProject project;
        project.write(u"work/here.h"_s, "");
        project.write(u"work/inc/there.h"_s, "");
        project.write(u"work/o/all.rsp"_s, "-DR1 @o/more.rsp '-DR2=a b' -I\"r d\"\n-DR3=\\\"q\\\"");
        project.write(u"work/o/more.rsp"_s, "-DM\n@o/all.rsp");
        project.write(u"work/o/wide.rsp"_s, QByteArray("\xFF\xFE/\0D\0W\0 \0/\0I\0i\0", 16));
        project.writeCommand(u"a.c"_s, command);
        QCOMPARE(project.convertDatabase().errors, QString());
        QTEST(project.optionsOf(u"a.c"_s).join(u" | "_s), "expected");
    }

    void saysWhatItLeavesOut_data()
    {
        const TestRows<QString, QString> row("command", "says");
        row("file system overlay", u"cc -ivfsoverlay v.yaml -c a.c"_s, u"-ivfsoverlay v.yaml"_s);
        row("precompiled header", u"clang -include-pch a.pch -c a.c"_s, u"-include-pch a.pch"_s);
        row("frameworks", u"clang -F /L -c a.c"_s, u"-F /L"_s);
        row("unknown", u"cc -qfancy=1 -c a.c"_s, u"-qfancy=1"_s);
        row("unknown, slash", u"cl /qfancy /c a.c"_s, u"/qfancy"_s);
        row("no predefined macros", u"cl.exe /u /c a.c"_s, u"/u"_s);
        row("no value", u"cc -c a.c -D"_s, u"-D (without a value)"_s);
        row("quotes only", u"cc -I a -I- -I b -c a.c"_s, u"-I- (that the folder of the source is not searched)"_s);
        row("missing response file", u"cc @gone.rsp -c a.c"_s, u"/gone.rsp: the file does not exist"_s);
        row("response file that is a folder", u"cc @. -c a.c"_s, u": it is not a file"_s);
        row("response file in itself", u"cc @self.rsp -c a.c"_s, u"@self.rsp: the file leads back to itself"_s);
        row("open quote in a response file", u"cc @open.rsp -c a.c"_s, u"@open.rsp: a quote is not closed"_s);
        row("other folder", u"cd sub && cc -c a.c"_s, u"cd sub (that the command changes its folder)"_s);
        row("open quote", u"cc -DX='a -c a.c"_s, u"has a quote that is not closed, in 1 place, the first is"_s);
    }

    void saysWhatItLeavesOut()
    {
        const auto [command, says] = fetched<QString, QString>("command", "says");
        const ConvertedProject project;
        project.write(u"work/self.rsp"_s, "@self.rsp");
        project.write(u"work/open.rsp"_s, "'-DX");
        project.writeCommand(u"a.c"_s, command);
        const ProgramResult result = project.convertDatabase();
        QVERIFY2(result.output.contains(says), qPrintable(result.output + result.errors));
        QVERIFY(project.read(u"work/p.options/conversion.log"_s).contains(says.section(u", in "_s, 0, 0).toUtf8()));
        // The next one has nothing to tell.
        project.writeCommand(u"a.c"_s, u"cc -Wall -O2 -g -c a.c -o a.o"_s);
        QCOMPARE(project.convertDatabase().status, 0);
        QVERIFY(project.read(u"work/p.options/conversion.log"_s).isEmpty());
    }

private:
    using Row = TestRows<QString, QString>;

    static void gnuRows(const Row& row)
    {
        row("defines", u"cc -DA -D B=1 --define-macro=C --define-macro D -c a.c"_s, u"-d A | -d B=1 | -d C | -d D"_s);
        row("quoted", u"cc '-DA=x y' -DB=\\\"s\\\" -D'F(x)=x+1' -c a.c"_s, u"-d A=x y | -d B=\"s\" | -d F(x)=x+1"_s);
        row("last one wins", u"cc -DX=1 -UX -DY=1 -DY=2 -UZ -DZ -c a.c"_s, u"-d Y=2 | -d Z | *orv undefine=X"_s);
        row("function and plain macro", u"cc -DX -D'X(a)=a' -c a.c"_s, u"-d X(a)=a"_s);
        row("kinds of folders", u"cc -isystem /s -I/i -idirafter /a -iquote /q -I /j --include-directory=/k -c a.c"_s,
            u"*orv folder=quote | -i \"/q\" | -i \"/i\" | -i \"/j\" | -i \"/k\" | *orv folder=system | -i \"/s\" | "
            "*orv folder=after | -i \"/a\""_s);
        row("folders of the other language", u"cc -cxx-isystem /p -c-isystem /c -c a.c"_s,
            u"*orv folder=system | -i \"/c\""_s);
        row("folders before -I-", u"cc -I/a -I- -I/b -c a.c"_s, u"*orv folder=quote | -i \"/a\" | -i \"/b\""_s);
        row("prefixes", u"cc -iprefix /p/ -iwithprefix w -iwithprefixbefore b -c a.c"_s,
            u"-i \"/p/b\" | *orv folder=after | -i \"/p/w\""_s);
        row("forced includes", u"cc -Iinc -include here.h -include there.h --include=gone.h -imacros here.h -c a.c"_s,
            u"-i \"~/inc\" | *orv macros=\"~/here.h\" | -fi \"~/here.h\" | -fi \"~/inc/there.h\" | -fi \"~/gone.h\""_s);
        row("standard", u"cc -std=gnu11 -std=c99 -c a.c"_s, u"*orv standard=c99"_s);
        row("standard of the other language", u"cc -std=c++17 -c a.c"_s, {});
        row("ansi", u"cc -ansi -c a.c"_s, u"*orv standard=c90"_s);
        row("ISO name", u"cc -std=iso9899:1999 -c a.c"_s, u"*orv standard=c99"_s);
        row("language", u"cc -x c++ -c a.c"_s, u"*orv language=c++"_s);
        row("language of another file", u"cc -c a.c -x c++ b.c"_s, {});
        row("C++ compiler", u"x86_64-linux-gnu-g++-12 -std=c++20 -c a.c"_s,
            u"*orv standard=c++20 | *orv language=c++"_s);
        row("target", u"clang -m32 -funsigned-char -target arm-none-eabi -fshort-enums -c a.c"_s,
            u"*orv target=-m32 | *orv target=-funsigned-char | *orv target=--target=arm-none-eabi | "
            "*orv target=-fshort-enums"_s);
        row("handed through", u"cc -Wp,-DA,-MD,a.d -Xpreprocessor -DB -Xclang -D -Xclang C -c a.c"_s,
            u"-d A | -d B | -d C"_s);
        row("values that look like options",
            u"cc -o -DO -MF -DF -MT -IT -MQ -DQ -Xlinker -DL -aux-info -DA --param -DP -arch_x -DX -c a.c"_s,
            u"-d X"_s);
        row("values that are joined", u"cc -oDx -MFx -L-DL -l-DX -Wl,-DW -T-DT -c a.c"_s, {});
        row("after the options", u"cc -DA -c -- a.c -DB"_s, u"-d A"_s);
    }

    static void pathRows(const Row& row)
    {
        row("system root", u"cc -I=/inc --sysroot=root -isystem =/s -I '$SYSROOT/v' -c a.c"_s,
            u"*orv target=--sysroot=~/root | -i \"~/root/inc\" | -i \"~/root/v\" | *orv folder=system | "
            "-i \"~/root/s\""_s);
        row("system root of headers", u"clang -iwithsysroot /w -isysroot /h --sysroot /r -c a.c"_s,
            u"*orv target=--sysroot=/h | *orv folder=system | -i \"/h/w\""_s);
        row("relative folders", u"cc -I. -Isub/.. -Ia/./b/../c -Ia//d -c a.c"_s,
            u"-i \"~\" | -i \"~\" | -i \"~/a/c\" | -i \"~/a/d\""_s);
        row("working directory", u"clang -working-directory sub -Iinc -c a.c"_s, u"-i \"~/sub/inc\""_s);
        row("response files", u"cc -DA @o/all.rsp -DB -c a.c"_s,
            u"-d A | -d R1 | -d M | -d R2=a b | -d R3=\"q\" | -d B | -i \"~/r d\""_s);
    }

    static void launcherRows(const Row& row)
    {
        const QString c11 = u"*orv standard=c11 | -d A"_s;
        row("two launchers", u"/usr/bin/distcc ccache clang-14 -std=c11 -DA -c a.c"_s, c11);
        row("environment", u"env LC_ALL=C icecc cc -std=c11 -DA -c a.c"_s, c11);
        row("libtool", u"/bin/bash ../libtool --tag=CC --mode=compile gcc -std=c11 -DA -c a.c"_s, c11);
        row("CMake's launcher", u"cmake -E __run_co_compile --tidy=t;-DT --source=a.c -- cc -std=c11 -DA -c a.c"_s,
            c11);
        row("launcher that knows the compiler", u"distcc -DA -std=c11 -c a.c"_s, c11);
        row("shell", u"/bin/sh -c 'gcc -DA -std=c11 -c a.c'"_s, c11);
        row("commands in a row", u"rm -f x && gcc -DA -std=c11 -c a.c && echo -DB || cp -DC"_s, c11);
        row("MSVC behind a launcher", u"sccache cl.exe /DA /Ii -c a.c"_s, u"-d A | -i \"~/i\""_s);
        row("clang-cl with a version", u"clang-cl-17 /DA -c a.c"_s, u"-d A"_s);
    }

    static void slashRows(const Row& row)
    {
        row("slashes", u"cl /nologo /DA=1 /D B /D\"C D\"=2 /U E /Ii /I j /FI here.h /Foa.obj /Fdx /c a.c"_s,
            u"-d A=1 | -d B | -d C D=2 | *orv undefine=E | -i \"~/i\" | -i \"~/j\" | -fi \"~/here.h\""_s);
        row("dashes", u"cl -DA -Ii -std:c11 -c a.c"_s, u"*orv standard=c11 | -d A | -i \"~/i\""_s);
        row("hash for a value", u"cl /DA#1 /DB=x#y /c a.c"_s, u"-d A=1 | -d B=x#y"_s);
        row("system folders", u"clang-cl /external:I e -imsvc m /external:W0 -isystem s /c a.c"_s,
            u"*orv folder=system | -i \"~/e\" | *orv folder=system | -i \"~/m\" | *orv folder=system | -i \"~/s\""_s);
        row("C++ for all", u"cl /c a.c /TP /std:c++latest"_s, u"*orv standard=c++23 | *orv language=c++"_s);
        row("C++ for this", u"cl /c /Tpa.c /std:c++17"_s, u"*orv standard=c++17 | *orv language=c++"_s);
        row("C++ for another", u"cl /c /Tp b.c a.c"_s, {});
        row("run-time library", u"cl /MDd /EHsc /D_DLL=7 /c a.c"_s,
            u"-d _MT=1 | -d _DEBUG=1 | -d _CPPUNWIND=1 | -d _DLL=7"_s);
        row("handed through", u"clang-cl /clang:-DA -Xclang -DB /c a.c"_s, u"-d A | -d B"_s);
        row("linker's options", u"cl /DA a.c /link /DB -IX"_s, u"-d A"_s);
        row("wide response file", u"cl @o/wide.rsp /c a.c"_s, u"-d W | -i \"~/i\""_s);
        row("slash is a folder elsewhere", u"gcc /Include/x.o /DX -c a.c"_s, {});
    }
};

KOVRA_TEST(CommandLineTest)
#include "CommandLineTest.moc"

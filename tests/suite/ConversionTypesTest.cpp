// SPDX-License-Identifier: MIT
#include "InstalledSuite.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

/// The conversion types of the suite's definitions, as a user starts them: each input has to reach the converter.
class ConversionTypesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        suite.write(u"work/src/CMakeLists.txt"_s,
                    "cmake_minimum_required(VERSION 3.16)\nproject(x CXX)\nadd_library(x STATIC a.cpp b.cpp)\n"
                    "target_compile_definitions(x PRIVATE FROM=${FROM})\n");
        suite.write(u"work/src/Makefile"_s, "all:\n\tg++ -DFROM=$(FROM) -c a.cpp b.cpp\n");
        suite.write(u"work/src/build.ninja"_s, "rule cc\n command = g++ -DFROM=ninja -c $in\n"
                                               "build a.o: cc a.cpp\nbuild b.o: cc b.cpp\n");
        suite.write(u"work/src/x.vcxproj"_s,
                    "<Project><ItemGroup><ProjectConfiguration Include=\"Debug|x64\"/>"
                    "<ProjectConfiguration Include=\"Ship|ARM64\"/></ItemGroup><ItemDefinitionGroup><ClCompile>"
                    "<PreprocessorDefinitions>FROM=$(Configuration)$(Platform)</PreprocessorDefinitions></ClCompile>"
                    "</ItemDefinitionGroup><ItemGroup><ClCompile Include=\"a.cpp;b.cpp\"/></ItemGroup></Project>");
        suite.write(u"work/src/a.cpp"_s, "int a;\n");
        suite.write(u"work/src/b.cpp"_s, "int b;\n");
    }

    void handsItsInputsToTheConverter_data()
    {
        const TestRows<QString, QStringList, QByteArray> row("type", "inputs", "define");
        const QString source = suite.path(u"work/src"_s);
        row("build folder", u"Build folder (CMake, Meson, Ninja)"_s, {u"Build folder="_s + source}, "ninja");
#ifdef Q_OS_UNIX
        row("cmake", u"CMake source folder"_s,
            {u"CMake source folder="_s + source, u"Options for cmake=-DFROM=options"_s}, "options");
        row("make", u"Make project (recorded while it builds)"_s,
            {u"Folder to build in="_s + source, u"Build command=make -B all"_s,
             u"Environment of the build=FROM=env;X=1"_s},
            "env");
#endif
        row("visual studio", u"Visual Studio solution or project"_s,
            {u"Solution or project="_s + source + u"/x.vcxproj"_s, u"Configuration=ship"_s, u"Platform=arm64"_s},
            "ShipARM64");
    }

    void handsItsInputsToTheConverter()
    {
        const auto [type, inputs, define] = fetched<QString, QStringList, QByteArray>("type", "inputs", "define");
        const QString project = suite.path(u"work/out/%1.prj"_s.arg(QString::fromLatin1(define)));
        QStringList arguments{u"-batch"_s, u"-cpp"_s, u"-prj"_s, project, u"-type"_s, type};
        for (const QString& input : inputs + QStringList{u"Leave out=b.*"_s, u"More defines=MORE=1"_s,
                                                         u"More include folders="_s + suite.path(u"work/more"_s),
                                                         u"Ask the compilers for their macros=0"_s}) {
            arguments += {u"-input"_s, input};
        }
        const ProgramResult result = runProgram(suite.program(), arguments);
        QVERIFY2(result.status == 0, qPrintable(result.output + result.errors));
        const QByteArray written = suite.readLines(project);
        QVERIFY2(written.contains("\na.cpp\n"), written);
        QVERIFY2(!written.contains("b.cpp"), written);
        const QByteArray options = suite.readLines(project.chopped(4) + u".options.p_a"_s);
        for (const QByteArray& line : {QByteArray("-d FROM=" + define), QByteArray("-d MORE=1"),
                                       "-i \"" + suite.path(u"work/more"_s).toUtf8() + '"'}) {
            QVERIFY2(options.contains('\n' + line + '\n'), options + result.output.toUtf8());
        }
        QVERIFY2(!result.output.contains("asked for its macros"_L1), qPrintable(result.output));
    }

private:
    InstalledSuite suite;
};

KOVRA_TEST(ConversionTypesTest)
#include "ConversionTypesTest.moc"

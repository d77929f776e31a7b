// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList sourceLines(const ConvertedProject& place)
{
    QStringList result;
    for (const ConvertedProject::Part& part : place.parts()) {
        for (const QString& file : part.files) {
            const QStringList own = place.options(part.analyser).filter(u"-d "_s);
            result += part.name + u' ' + file + u": "_s + own.join(u' ');
        }
    }
    return result;
}

} // namespace

/// What prjconv itself makes of real builds.
class BuildConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesPartsOfTargets()
    {
        const ConvertedProject place;
        place.write(u"work/src/CMakeLists.txt"_s,
                    "cmake_minimum_required(VERSION 3.16)\nproject(x CXX)\n"
                    "foreach(name one two)\nadd_library(${name} STATIC lib/a.cpp)\n"
                    "target_compile_definitions(${name} PRIVATE FOR_${name} ${MORE})\nendforeach()\n");
        place.write(u"work/src/lib/a.cpp"_s, "int a;\n");
        const ProgramResult result =
            place.convert({u"--cmake-source"_s, u"src"_s, u"--cmake-options"_s, u"-DMORE=A=1 -DCMAKE_CXX_FLAGS="_s,
                           u"--options"_s, u"sub-projects"_s});
        QVERIFY2(result.status == 0, qPrintable(result.errors));
        QVERIFY2(result.output.contains("-- Generating done"_L1), qPrintable(result.output));
        QCOMPARE(sourceLines(place).join(u'|'), u"one a.cpp: -d A=1 -d FOR_one|two a.cpp: -d A=1 -d FOR_two"_s);
    }

    void makesPartsOfProjects()
    {
        const ConvertedProject place;
        const QByteArray project = "<Project>\n<PropertyGroup><CharacterSet>Unicode</CharacterSet></PropertyGroup>\n"
                                   "<ItemDefinitionGroup><ClCompile><RuntimeLibrary>%1</RuntimeLibrary>\n"
                                   "<PreprocessorDefinitions>$(Configuration);$(None);%(PreprocessorDefinitions)"
                                   "</PreprocessorDefinitions></ClCompile></ItemDefinitionGroup>\n"
                                   "<ItemGroup><ClCompile Include=\"..\\SRC\\a.cpp\"/></ItemGroup></Project>\n";
        place.write(u"work/Src/A.cpp"_s, "int a;\n");
        place.write(u"work/one/one.vcxproj"_s, QByteArray(project).replace("%1", "MultiThreaded"));
        place.write(u"work/two/two.vcxproj"_s, QByteArray(project).replace("%1", "MultiThreadedDebugDLL"));
        place.write(u"work/all.slnx"_s,
                    "<Solution><Configurations><Platform Name=\"x64\"/></Configurations>\n"
                    "<Project Path=\"one/one.vcxproj\"/><Project Path=\"two/two.vcxproj\"/></Solution>\n");
        const ProgramResult result = place.convert({u"--visual-studio"_s, u"all.slnx"_s, u"--configuration"_s,
                                                    u"release"_s, u"--options"_s, u"sub-projects"_s});
        QVERIFY2(result.status == 0, qPrintable(result.errors));
        QVERIFY2(result.output.contains("all.slnx is read as Release|x64; there are also Debug|x64"_L1),
                 qPrintable(result.output));
        QStringList lines = sourceLines(place);
        lines.replaceInStrings(QRegularExpression(u"-d (_CPP|_M)\\w*=1 ?"_s), QString());
        QCOMPARE(lines.join(u'|'), u"one A.cpp: -d Release -d _UNICODE -d UNICODE|"
                                   "two A.cpp: -d Release -d _UNICODE -d UNICODE -d _DLL=1 -d _DEBUG=1"_s);
        const QString log = QString::fromUtf8(place.read(u"work/p.options/conversion.log"_s));
        QVERIFY2(log.contains("\"$(None)\": $(None) is unknown"_L1), qPrintable(log));
        QVERIFY2(log.contains(place.work(u"two/two.vcxproj:4"_s)), qPrintable(log));
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

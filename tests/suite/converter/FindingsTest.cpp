// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "TestMain.h"

#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

// FILE:LINE:ID of each message.
QStringList shortened(const QString& messages, const QString& folder)
{
    static const QRegularExpression message(u"^((?:\\w:)?[^:]+:\\d+):\\d+: .*\\[(\\w+)\\]$"_s,
                                            QRegularExpression::MultilineOption);
    QStringList lines;
    for (const QRegularExpressionMatch& match : message.globalMatch(messages)) {
        lines += match.captured(1).remove(folder + u'/') + u':' + match.captured(2);
    }
    lines.sort();
    return lines;
}

// As for a build description: what a build does not define is not tried out.
QStringList findings(const QStringList& arguments, const QString& folder)
{
    const QStringList all = QStringList{u"--quiet"_s, u"--max-configs=1"_s, u"--suppress=toomanyconfigs"_s,
                                        u"--enable=warning,style,performance,portability"_s,
                                        u"--template={file}:{line}:{column}: {severity}: {message} [{id}]"_s} +
                            arguments;
    return shortened(QDir::fromNativeSeparators(runProgram(u"cppcheck"_s, all, {}, folder).errors), folder);
}

// The suite's analyser is told by its name which one it is.
ProgramResult analyse(const ConvertedProject& project)
{
    return runProgram(project.placeProgram(QStringLiteral(ANALYSER), u"bin/orvcpp"_s),
                      {u"-prj"_s, project.work(u"p.prj"_s)}, {}, project.path(u"work"_s));
}

QStringList foundIn(const ConvertedProject& project, const QString& source)
{
    const QString output = project.partOf(source).outputDir + u'/' + QFileInfo(source).fileName() + u".err"_s;
    return shortened(QString::fromUtf8(project.read(output)), project.path(u"work"_s));
}

// A project of Visual Studio whose two configurations define SIZE otherwise.
QByteArray visualStudioProject(const QByteArray& sources, const QByteArray& debugSize)
{
    QByteArray text = "<Project><ItemGroup Label=\"ProjectConfigurations\">";
    QByteArray settings;
    for (const auto& [name, size] : {std::pair<QByteArray, QByteArray>("Debug", debugSize), {"Release", "0"}}) {
        text += "<ProjectConfiguration Include=\"" + name + "|x64\"><Configuration>" + name +
                "</Configuration><Platform>x64</Platform></ProjectConfiguration>";
        settings += "<ItemDefinitionGroup Condition=\"'$(Configuration)|$(Platform)'=='" + name +
                    "|x64'\"><ClCompile><PreprocessorDefinitions>SIZE=" + size +
                    ";%(PreprocessorDefinitions)</PreprocessorDefinitions><AdditionalIncludeDirectories>..\\inc"
                    "</AdditionalIncludeDirectories></ClCompile></ItemDefinitionGroup>";
    }
    text += "</ItemGroup>" + settings + "<ItemGroup>";
    for (const QByteArray& source : sources.split(' ')) {
        text += "<ClCompile Include=\"" + source + "\" />";
    }
    return text + "</ItemGroup></Project>\n";
}

// One build, told in different ways: conflicting defines and orders of folders.
void writeBuilds(const ConvertedProject& project)
{
    const QByteArray work = project.path(u"work"_s).toUtf8();
    const QString compiler = u"x86_64-linux-gnu-g++"_s;
    project.writeCommands({compiler + u" -DSIZE=2 -Iinc -Iother -c app/a.cpp"_s, u"x86_64-linux-gnu-gcc -c app/b.c"_s,
                           compiler + u" -DSIZE=3 -Iother -Iinc -c lib/l.cpp"_s});
    project.write(u"work/db.json"_s, project.read(u"work/db.json"_s).replace("{", "{\"directory\": \"" + work + "\","));
    const QByteArray usesSize = "#include \"n.h\"\nint f() { int v[2] = {0, 1}; return v[SIZE]; }\n";
    for (const auto& [name, contents] : std::initializer_list<std::pair<const char*, QByteArray>>{
             {"app/a.cpp", usesSize + "#ifdef _WIN32\nint w() { int v[1] = {0}; return v[N]; }\n#endif\n"},
             {"app/b.c", "int k(void) { int class = 1, v[1] = {0}; return v[class]; }\n"},
             {"lib/l.cpp", usesSize + "int g() { int v[3] = {0, 1, 2}; return v[N]; }\n"},
             {"inc/n.h", "#define N 2\n"},
             {"other/n.h", "#define N 3\n"},
             {"app/app.vcxproj", visualStudioProject("a.cpp b.c", "2")},
             {"lib/lib.vcxproj", visualStudioProject("l.cpp", "3")},
             {"All.sln",
              "\nMicrosoft Visual Studio Solution File, Format Version 12.00\n"
              "Project(\"{1}\") = \"app\", \"app\\app.vcxproj\", \"{2}\"\nEndProject\n"
              "Project(\"{1}\") = \"lib\", \"lib\\lib.vcxproj\", \"{3}\"\nEndProject\nGlobal\nEndGlobal\n"}}) {
        project.write(u"work/"_s + QString::fromLatin1(name), contents);
    }
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
        const TestRows<QStringList, QString, qsizetype> row("build", "configuration", "count");
        const QStringList debug{u"--configuration"_s, u"Debug"_s, u"--platform"_s, u"x64"_s};
        row("database", {u"--compile-commands"_s, u"db.json"_s}, {}, 8);
        row("solution", QStringList{u"--visual-studio"_s, u"All.sln"_s} + debug, u"Debug|x64"_s, 9);
        row("project in its other configuration",
            {u"--visual-studio"_s, u"app/app.vcxproj"_s, u"--configuration"_s, u"Release"_s, u"--platform"_s, u"x64"_s},
            u"Release|x64"_s, 5);
    }

    void findsTheSame()
    {
        const auto [build, configuration] = fetched<QStringList, QString>("build", "configuration");
        const ConvertedProject project;
        writeBuilds(project);
        const QStringList more{u"--compiler-macros"_s, u"1"_s, u"--options"_s, u"sub-projects"_s};
        QCOMPARE(project.convert(build + more).errors, QString());
        const ProgramResult analysis = analyse(project);
        QVERIFY2(analysis.status == 0, qPrintable(analysis.errors));
        QStringList found;
        for (const ConvertedProject::Part& part : project.parts()) {
            for (const QString& file : part.files) {
                found += foundIn(project, file);
            }
        }
        found.sort();
        QStringList byHand{u"--project="_s + project.work(build[1])};
        byHand += configuration.isEmpty() ? QStringList() : QStringList{u"--project-configuration="_s + configuration};
        QCOMPARE(found, findings(byHand, project.path(u"work"_s)));
        QTEST(found.size(), "count");
    }
};

KOVRA_TEST(FindingsTest)
#include "FindingsTest.moc"

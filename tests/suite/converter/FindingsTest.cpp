// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Files = QMap<QString, QByteArray>;

// FILE:LINE:ID of each message.
QStringList shortened(const QString& messages, const QString& folder)
{
    static const QRegularExpression message(u"^([^:]+:\\d+):\\d+: .*\\[(\\w+)\\]$"_s,
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
    return shortened(runProgram(u"cppcheck"_s, all, {}, folder).errors, folder);
}

void writeFiles(const ConvertedProject& project, const Files& files)
{
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        project.write(u"work/"_s + file.key(), file.value());
    }
}

// The suite's analyser is told by its name which one it is.
ProgramResult analyse(const ConvertedProject& project)
{
    const QString program = project.path(u"bin/orvcpp"_s);
    return QFile::link(QStringLiteral(ANALYSER), program)
               ? runProgram(program, {u"-prj"_s, project.work(u"p.prj"_s)}, {}, project.path(u"work"_s))
               : ProgramResult{.status = -1, .output = {}, .errors = program + u": can not be linked"_s};
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

    void findsTheSame()
    {
        const ConvertedProject project;
        const QByteArray usesSize = "int f() { int v[2] = {0, 1}; return v[SIZE]; }\n";
        const QByteArray usesHeader = "#include \"n.h\"\nint h() { int v[2] = {0, 1}; return v[N]; }\n";
        writeFiles(project, {{u"a.cpp"_s, usesSize},
                             {u"b.cpp"_s, usesSize},
                             {u"c.cpp"_s, usesHeader},
                             {u"d.cpp"_s, usesHeader},
                             {u"x/n.h"_s, "#define N 1\n"},
                             {u"y/n.h"_s, "#define N 2\n"}});
        const std::pair<QString, QString> sources[] = {{u"a.cpp"_s, u"-DSIZE=1"_s},
                                                       {u"b.cpp"_s, u"-DSIZE=2"_s},
                                                       {u"c.cpp"_s, u"-Ix -Iy"_s},
                                                       {u"d.cpp"_s, u"-Iy -Ix"_s}};
        QStringList commands;
        for (const auto& [source, options] : sources) {
            commands += u"c++ %1 -c %2"_s.arg(options, source);
        }
        project.writeCommands(commands);
        QCOMPARE(project.convertDatabase().errors, QString());
        const ProgramResult analysis = analyse(project);
        QVERIFY2(analysis.status == 0, qPrintable(analysis.errors));
        qsizetype found = 0;
        for (const auto& [source, options] : sources) {
            const QStringList expected = findings(options.split(u' ') + QStringList{source}, project.path(u"work"_s));
            QCOMPARE(foundIn(project, source), expected);
            found += expected.size();
        }
        QVERIFY(found > 0);
    }

    void findsTheSameInVisualStudio_data()
    {
        const TestRows<QString, QString, qsizetype> row("description", "configuration", "count");
        row("solution", u"All.sln"_s, u"Debug"_s, 9);
        row("project in its other configuration", u"app/app.vcxproj"_s, u"Release"_s, 5);
    }

    void findsTheSameInVisualStudio()
    {
        QFETCH(const QString, description);
        QFETCH(const QString, configuration);
        const ConvertedProject project;
        const QByteArray usesSize = "#include \"n.h\"\nint f() { int v[2] = {0, 1}; return v[SIZE]; }\n";
        writeFiles(project,
                   {{u"app/a.cpp"_s, usesSize + "#ifdef _WIN32\nint w() { int v[1] = {0}; return v[N]; }\n#endif\n"},
                    {u"app/b.c"_s, "int k(void) { int class = 1, v[1] = {0}; return v[class]; }\n"},
                    {u"lib/l.cpp"_s, usesSize + "int g() { int v[3] = {0, 1, 2}; return v[N]; }\n"},
                    {u"inc/n.h"_s, "#define N 2\n"},
                    {u"app/app.vcxproj"_s, visualStudioProject("a.cpp b.c", "2")},
                    {u"lib/lib.vcxproj"_s, visualStudioProject("l.cpp", "3")},
                    {u"All.sln"_s,
                     "\nMicrosoft Visual Studio Solution File, Format Version 12.00\n"
                     "Project(\"{1}\") = \"app\", \"app\\app.vcxproj\", \"{2}\"\nEndProject\n"
                     "Project(\"{1}\") = \"lib\", \"lib\\lib.vcxproj\", \"{3}\"\nEndProject\nGlobal\nEndGlobal\n"}});
        const ProgramResult result = project.convert(
            {u"--visual-studio"_s, project.work(description), u"--configuration"_s, configuration, u"--platform"_s,
             u"x64"_s, u"--compiler-macros"_s, u"1"_s, u"--options"_s, u"sub-projects"_s});
        QVERIFY2(result.status == 0, qPrintable(result.errors));
        const ProgramResult analysis = analyse(project);
        QVERIFY2(analysis.status == 0, qPrintable(analysis.errors));
        QStringList found;
        for (const ConvertedProject::Part& part : project.parts()) {
            for (const QString& file : part.files) {
                found += foundIn(project, file);
            }
        }
        found.sort();
        QCOMPARE(found, findings({u"--project="_s + project.work(description),
                                  u"--project-configuration=%1|x64"_s.arg(configuration)},
                                 project.path(u"work"_s)));
        QTEST(found.size(), "count");
    }
};

KOVRA_TEST(FindingsTest)
#include "FindingsTest.moc"

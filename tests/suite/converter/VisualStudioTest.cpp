// SPDX-License-Identifier: MIT
#include "visualstudio/VisualStudio.h"
#include "Failure.h"
#include "Installation.h"
#include "Notices.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

namespace {

/// What reading a solution or project gives, as text, with "~" for the test's own folder.
struct Reading
{
    Reading(const Installation& place, const QString& file, const QString& configuration = u"|"_s)
    {
        const auto shortened = [&](const QString& text) {
            return QString(text).replace(place.path(u"work"_s), u"~"_s).replace(place.nativePath(u"work"_s), u"~"_s);
        };
        Notices told;
        try {
            const BuildCommands found =
                readVisualStudio(place.path(u"work/"_s + file), BuildConfiguration::fromText(configuration), told);
            for (const BuildCommand& command : found) {
                isWindows = isWindows && command.windows;
                commands += shortened(u"%1 %2 %3: %4"_s.arg(command.target, command.directory, command.file,
                                                            command.arguments.join(u' ')));
            }
        } catch (const Failure& failure) {
            error = shortened(failure.text);
        }
        QStringList texts = told.said();
        for (const Notices::LeftOut& omission : told.leftOut()) {
            texts += omission.text();
        }
        notices = shortened(texts.join(u'\n'));
    }

    /// The words of a source's command after those of every source.
    QString own(const QString& file) const
    {
        for (const QString& command : commands) {
            if (command.contains(u'/' + file + u':')) {
                return command.section(u"/MD"_s, 1).trimmed();
            }
        }
        return u"no such source"_s;
    }

    QStringList commands;
    QString notices;
    QString error;
    bool isWindows = true;
};

// Where the system's names have no letter case, they stay as the solution writes them.
#ifdef Q_OS_WIN
QString folded(const QString& text)
{
    return text.toLower();
}
#else
QString folded(const QString& text)
{
    return text;
}
#endif

// What stands in every project, on one line.
constexpr auto standardImports =
    R"xml(<ImportGroup><Import Project="$(VCTargetsPath)\Microsoft.Cpp.Default.props" />)xml"
    R"xml(<Import Project="$(UserRootDir)\Microsoft.Cpp.$(Platform).user.props" )xml"
    R"xml(Condition="exists('$(UserRootDir)\Microsoft.Cpp.$(Platform).user.props')" /></ImportGroup>)xml";

QByteArray project(const QByteArray& body)
{
    return "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Project>"
           "<ItemGroup Label=\"ProjectConfigurations\"><ProjectConfiguration Include=\"Debug|Win32\"/>"
           "<ProjectConfiguration Include=\"Debug|x64\"/><ProjectConfiguration Include=\"Release|x64\"/></ItemGroup>" +
           QByteArray(standardImports) + '\n' + body + "</Project>\n";
}

/// A project of one source, with these elements in its own settings.
QByteArray oneSource(const QByteArray& before, const QByteArray& settings)
{
    return project(before + "<ItemGroup><ClCompile Include=\"a.cpp\">" + settings + "</ClCompile></ItemGroup>");
}

// Two projects that share sources and a property sheet, as the tools write them.
void writeSolution(const Installation& place)
{
    for (const char* name :
         {"App/Main.cpp", "App/Util/Tool.c", "App/gen/one.cpp", "App/gen/deep/two.cpp", "Lib/lib.cpp", "App/old.cpp",
          "Shared/Shared.cpp", "App/Force.h", "Include/x.h", "App/winonly.cpp"}) {
        place.write(u"work/"_s + QString::fromLatin1(name), "");
    }
    place.write(u"work/All.sln"_s, R"xml(
Microsoft Visual Studio Solution File, Format Version 12.00
# Visual Studio Version 17
Project("{8BC9CEB8-8B4A-11D0-8D11-00A0C91BC942}") = "App", "APP\App.vcxproj", "{AAAAAAAA-0000-0000-0000-000000000001}"
EndProject
Project("{8BC9CEB8-8B4A-11D0-8D11-00A0C91BC942}") = "Lib", "lib\lib.VCXPROJ", "{AAAAAAAA-0000-0000-0000-000000000002}"
	ProjectSection(ProjectDependencies) = postProject
	EndProjectSection
EndProject
Project("{D954291E-2A0B-460D-934E-DC6B0785DA48}") = "Shared", "Shared\Shared.vcxitems", "{A-3}"
EndProject
Project("{2150E333-8FDC-42A3-9474-1A3956D46DE8}") = "Folder", "Folder", "{A-4}"
EndProject
Project("{FAE04EC0-301F-11D3-BF4B-00C04F79EFBC}") = "Gui", "Gui\Gui.csproj", "{A-5}"
EndProject
Project("{8BC9CEB8-8B4A-11D0-8D11-00A0C91BC942}") = "Gone", "Gone\Gone.vcxproj", "{AAAAAAAA-0000-0000-0000-000000000006}"
EndProject
Global
	GlobalSection(SolutionConfigurationPlatforms) = preSolution
		Debug|x64 = Debug|x64
		Debug|x86 = Debug|x86
		Release|x64 = Release|x64
	EndGlobalSection
	GlobalSection(ProjectConfigurationPlatforms) = postSolution
		{AAAAAAAA-0000-0000-0000-000000000001}.Debug|x64.ActiveCfg = Debug|x64
		{AAAAAAAA-0000-0000-0000-000000000001}.Debug|x64.Build.0 = Debug|x64
		{AAAAAAAA-0000-0000-0000-000000000001}.Debug|x86.ActiveCfg = Debug|Win32
		{AAAAAAAA-0000-0000-0000-000000000001}.Debug|x86.Build.0 = Debug|Win32
		{AAAAAAAA-0000-0000-0000-000000000001}.Release|x64.ActiveCfg = Release|x64
		{AAAAAAAA-0000-0000-0000-000000000001}.Release|x64.Build.0 = Release|x64
		{AAAAAAAA-0000-0000-0000-000000000002}.Debug|x64.ActiveCfg = Release|x64
		{AAAAAAAA-0000-0000-0000-000000000002}.Debug|x64.Build.0 = Release|x64
		{AAAAAAAA-0000-0000-0000-000000000002}.Debug|x86.ActiveCfg = Debug|Win32
		{AAAAAAAA-0000-0000-0000-000000000002}.Release|x64.ActiveCfg = Release|x64
		{AAAAAAAA-0000-0000-0000-000000000006}.Debug|x64.Build.0 = Debug|x64
	EndGlobalSection
EndGlobal
)xml");
    place.write(u"work/Sheets/Common.props"_s, R"xml(<Project ToolsVersion="4.0">
<PropertyGroup Label="UserMacros"><Top>$(MSBuildThisFileDirectory)..\</Top></PropertyGroup>
<ItemDefinitionGroup><ClCompile>
  <AdditionalIncludeDirectories>$(Top)include;%(AdditionalIncludeDirectories)</AdditionalIncludeDirectories>
  <PreprocessorDefinitions>SHEET;%(PreprocessorDefinitions)</PreprocessorDefinitions>
</ClCompile></ItemDefinitionGroup></Project>)xml");
    place.write(u"work/Shared/Shared.vcxitems"_s, R"xml(<Project><PropertyGroup><ItemsProjectName>S</ItemsProjectName>
</PropertyGroup><ItemDefinitionGroup><ClCompile>
  <AdditionalIncludeDirectories>%(AdditionalIncludeDirectories);$(MSBuildThisFileDirectory)</AdditionalIncludeDirectories>
</ClCompile></ItemDefinitionGroup>
<ItemGroup><ClCompile Include="$(MSBuildThisFileDirectory)shared.CPP" /></ItemGroup></Project>)xml");
    place.write(u"work/Directory.build.props"_s,
                "<Project><PropertyGroup><Everywhere>EVERYWHERE</Everywhere></PropertyGroup></Project>");
    place.write(u"work/App/App.vcxproj"_s, project(R"xml(
<PropertyGroup Condition="'$(Configuration)|$(Platform)'=='Debug|x64'" Label="Configuration">
  <ConfigurationType>DynamicLibrary</ConfigurationType><UseDebugLibraries>true</UseDebugLibraries>
  <CharacterSet>Unicode</CharacterSet></PropertyGroup>
<Import Project="$(VCTargetsPath)\Microsoft.Cpp.props" />
<ImportGroup Label="PropertySheets" Condition="'$(Platform)'=='x64'"><Import Project="..\sheets\common.props" /></ImportGroup>
<ImportGroup Label="Shared"><Import Project="..\Shared\Shared.vcxitems" Label="Shared" /></ImportGroup>
<ItemDefinitionGroup><ClCompile>
  <PreprocessorDefinitions>$(Everywhere);DIR="$(SolutionName)";%(PreprocessorDefinitions)</PreprocessorDefinitions>
  <LanguageStandard>stdcpp20</LanguageStandard><LanguageStandard_C>stdc17</LanguageStandard_C>
  <ForcedIncludeFiles>force.h</ForcedIncludeFiles>
</ClCompile></ItemDefinitionGroup>
<ItemGroup>
  <ClCompile Include="main.cpp" />
  <ClCompile Include="util\tool.C">
    <PreprocessorDefinitions Condition="'$(Configuration)|$(Platform)'=='Debug|x64'">OWN=1;%(PreprocessorDefinitions)</PreprocessorDefinitions>
    <UndefinePreprocessorDefinitions>SHEET</UndefinePreprocessorDefinitions>
    <AdditionalIncludeDirectories>util;$(IncludePath)</AdditionalIncludeDirectories>
    <ForcedIncludeFiles /></ClCompile>
  <ClCompile Include="old.cpp"><ExcludedFromBuild>true</ExcludedFromBuild></ClCompile>
  <ClCompile Include="winonly.cpp"><ExcludedFromBuild Condition="'$(Platform)'=='x64'">true</ExcludedFromBuild></ClCompile>
  <ClCompile Include="gen\**\*.cpp"><RuntimeLibrary>MultiThreaded</RuntimeLibrary>
    <AdditionalOptions>/D "A B=c d" /Zc:__cplusplus %(AdditionalOptions)</AdditionalOptions></ClCompile>
</ItemGroup>)xml"));
    place.write(u"work/Lib/lib.vcxproj"_s,
                project(R"xml(<PropertyGroup><ProjectName>TheLib</ProjectName><CharacterSet>MultiByte</CharacterSet>
<PlatformToolset>ClangCL</PlatformToolset></PropertyGroup><ItemGroup><ClCompile Include="**\*.cpp">
<CompileAs>CompileAsC</CompileAs><ExceptionHandling>false</ExceptionHandling><RuntimeTypeInfo>false</RuntimeTypeInfo>
<PreprocessorDefinitions>$(ConfigurationName);$(OutDir)$(TargetName);%(PreprocessorDefinitions)</PreprocessorDefinitions>
</ClCompile></ItemGroup>)xml"));
}

} // namespace

class VisualStudioTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsASolution()
    {
        const Installation place;
        writeSolution(place);
        const Reading reading(place, u"All.sln"_s);
        QCOMPARE(reading.error, QString());
        QVERIFY(reading.isWindows);
        const QString dynamic = u"_WINDLL /D _UNICODE /D UNICODE"_s;
        const QString common = u"/I ~/Include /I ~/Shared "_s;
        const QString defines = u"/D EVERYWHERE /D DIR=\"All\" /D SHEET /D "_s + dynamic;
        const QString force = u" /FI ~/App/Force.h"_s;
        const QString cl = u"MSVC/14.39/bin/Hostx64/x64/cl.exe /EHsc /GR "_s;
        QCOMPARE(
            folded(reading.commands.join(u'\n')),
            folded(QStringList(
                       {u"App ~/App ~/Shared/Shared.cpp: "_s + cl + u"/MDd /std:c++20 "_s + common + defines + force,
                        u"App ~/App ~/App/Main.cpp: "_s + cl + u"/MDd /std:c++20 "_s + common + defines + force,
                        u"App ~/App ~/App/Util/Tool.c: "_s + cl + u"/MDd /std:c17 /I ~/App/Util /D OWN=1 "_s + defines +
                            u" /U SHEET"_s,
                        u"App ~/App ~/App/gen/deep/two.cpp: "_s + cl + u"/MT /std:c++20 "_s + common + defines + force +
                            u" /D A B=c d /Zc:__cplusplus"_s,
                        u"App ~/App ~/App/gen/one.cpp: "_s + cl + u"/MT /std:c++20 "_s + common + defines + force +
                            u" /D A B=c d /Zc:__cplusplus"_s,
                        u"TheLib ~/Lib ~/Lib/lib.cpp: clang-cl.exe -m64 /GR- /MD /TC /D Release"
                        " /D ~/x64\\Release\\TheLib /D _MBCS"_s})
                       .join(u'\n')));
        QCOMPARE(
            folded(reading.notices),
            folded(u"~/All.sln is read as Debug|x64; there are also Debug|x86, Release|x64\n"
                   "~/Directory.build.props counts for the projects below its folder and is read\n"
                   "App: 5 sources as Debug|x64, 2 are excluded from the build\n"
                   "TheLib: 1 source as Release|x64\n"
                   "warning: ~/All.sln:14: the project \"Gui\" is left out: Gui\\Gui.csproj is no project of C or C++ "
                   "sources that can be read\n"
                   "warning: ~/All.sln:16: the project \"Gone\" is left out: ~/Gone/Gone.vcxproj does not exist"_s));
    }

    void choosesAConfiguration_data()
    {
        const TestRows<QString, QString, QString> row("file", "wanted", "told");
        row("not built", u"All.sln"_s, u"debug|x86"_s,
            u"the project \"Lib\" is left out: it is not built in Debug|x86"_s);
        row("the project's own", u"All.sln"_s, u"Debug|X86"_s, u"App: 6 sources as Debug|Win32"_s);
        row("first of a platform", u"All.sln"_s, u"|x86"_s, u"is read as Debug|x86"_s);
        row("none", u"All.sln"_s, u"Profile|x64"_s,
            u"~/All.sln: is not built as \"Profile|x64\". Choose configuration and platform of: "
            "Debug|x64, Debug|x86, Release|x64."_s);
        row("project alone", u"App/App.vcxproj"_s, u"Debug|x86"_s, u"is read as Debug|Win32"_s);
        row("project without it", u"App/App.vcxproj"_s, u"Release|Win32"_s,
            u"of: Debug|Win32, Debug|x64, Release|x64."_s);
        row("shared items alone", u"Shared/Shared.vcxitems"_s, u"|"_s, u"Shared: 1 source as Debug|Win32"_s);
        row("xml", u"All.slnx"_s, u"|"_s, u"is read as Dev|x64; there are also Dev|x86, Ship|x64"_s);
        row("xml, mapped", u"All.slnx"_s, u"Ship|x64"_s, u"App: 5 sources as Release|x64"_s);
        row("xml, mapped platform", u"All.slnx"_s, u"Dev|x86"_s, u"App: 6 sources as Debug|Win32"_s);
        row("xml, not built", u"All.slnx"_s, u"Ship|x64"_s,
            u"~/All.slnx:5: the project \"lib.vcxproj\" is left out: it is not built in Ship|x64"_s);
        row("xml without lists", u"Bare.slnx"_s, u"Release|x64"_s, u"TheLib: 1 source as Release|x64"_s);
        row("sections missing", u"Bare.sln"_s, u"Release|"_s, u"TheLib: 1 source as Release|x64"_s);
        row("other file", u"Sheets/Common.props"_s, u"|"_s, u"is neither a solution nor a project"_s);
        row("no file", u"none.sln"_s, u"|"_s, u"~/none.sln: can not be read (it does not exist)"_s);
    }

    void choosesAConfiguration()
    {
        const auto [file, wanted, told] = fetched<QString, QString, QString>("file", "wanted", "told");
        const Installation place;
        writeSolution(place);
        place.write(u"work/All.slnx"_s, R"xml(<Solution>
<Configurations><BuildType Name="Dev"/><BuildType Name="Ship"/><Platform Name="x64"/><Platform Name="x86"/></Configurations>
<Folder Name="/code/"><Project Path="App/App.vcxproj"><BuildType Solution="Dev|*" Project="Debug"/>
<BuildType Solution="Ship|*" Project="Release"/><Platform Solution="*|x86" Project="Win32"/></Project>
<Project Path="Lib/lib.vcxproj"><BuildType Project="Release"/><Platform Project="x64"/><Build Solution="Ship|*" Project="false"/></Project>
</Folder></Solution>)xml");
        place.write(u"work/Bare.slnx"_s, "<Solution><Project Path=\"Lib/lib.vcxproj\"/></Solution>");
        place.write(u"work/Bare.sln"_s, "Microsoft Visual Studio Solution File, Format Version 12.00\n"
                                        "Project(\"{8}\") = \"Lib\", \"Lib\\lib.vcxproj\", \"{2}\"\nEndProject\n");
        const Reading reading(place, file, wanted);
        QVERIFY2((reading.error + u'\n' + reading.notices).contains(told),
                 qPrintable(reading.error + u'\n' + reading.notices));
    }

    void evaluatesConditions_data()
    {
        const TestRows<QString, QString> row("condition", "result");
        row("without case", u"'$(configuration)|$(PLATFORM)' == 'DEBUG|x64'"_s, u"yes"_s);
        row("unequal", u"'$(Platform)'!='x64'"_s, u"no"_s);
        row("and binds tighter", u"'a'=='a' Or 'a'=='b' And 'a'=='c'"_s, u"yes"_s);
        row("parentheses", u"('a'=='a' or 'a'=='b') and 'a'=='c'"_s, u"no"_s);
        row("negation", u"!('$(Platform)'=='Win32') and !Exists('nothing.h')"_s, u"yes"_s);
        row("exists", u"Exists('SUB\\x.h') and exists('$(ProjectDir)sub')"_s, u"yes"_s);
        row("numbers", u"0x10 == 16.0 And $(VisualStudioVersion) >= 16 and 2 < 10"_s, u"yes"_s);
        row("booleans", u"'$(Yes)' == 'on'"_s, u"yes"_s);
        row("bare boolean", u"$(Yes)"_s, u"yes"_s);
        row("trailing slash", u"HasTrailingSlash('$(OutDir)')"_s, u"yes"_s);
        row("members", u"$(Configuration.ToLower().StartsWith('de')) and '$(Platform.Replace('x', 'y'))'=='y64'"_s,
            u"yes"_s);
        row("unset macro", u"'$(Nothing)' == ''"_s, u"yes"_s);
        row("solution's folder is not set", u"'$(SolutionDir)' == ''"_s, u"yes"_s);
        row("unknown function decides", u"'a'=='a' and Knows('x')"_s, u"told"_s);
        row("unknown function does not", u"'a'=='b' and Knows('x')"_s, u"no"_s);
        row("order of texts", u"'a' < 'b'"_s, u"told"_s);
        row("no end", u"'a'=='a"_s, u"told"_s);
        row("no macro's end", u"'$(A'=='a'"_s, u"told"_s);
        row("no parenthesis", u"('a'=='a'"_s, u"told"_s);
        row("rest", u"'a'=='a' 'b'"_s, u"told"_s);
        row("no text", u"'a'== "_s, u"told"_s);
        row("deep", QString(5000, u'(') + u"'a'=='a'"_s, u"told"_s);
    }

    void evaluatesConditions()
    {
        const auto [condition, result] = fetched<QString, QString>("condition", "result");
        const Installation place;
        place.write(u"work/sub/x.h"_s, "");
        place.write(u"work/p.vcxproj"_s,
                    oneSource("<PropertyGroup><Yes>true</Yes><PlatformToolset>v142</PlatformToolset></PropertyGroup>\n",
                              "<PreprocessorDefinitions Condition=\"" + condition.toHtmlEscaped().toUtf8() +
                                  "\">YES</PreprocessorDefinitions>"));
        const Reading reading(place, u"p.vcxproj"_s, u"Debug|x64"_s);
        QCOMPARE(reading.own(u"a.cpp"_s), result == "yes"_L1 ? u"/D YES"_s : QString());
        QCOMPARE(
            reading.notices.contains("warning: ~/p.vcxproj:4: <PreprocessorDefinitions> is left out: its condition "
                                     "is not understood: "_L1 +
                                     condition),
            result == "told"_L1);
    }

    void expandsMacros_data()
    {
        const TestRows<QByteArray, QString, QString> row("text", "words", "told");
        row("project", "$(ProjectName)-$(ProjectExt)-$(ProjectFileName);$(MSBuildProjectDirectory)",
            u"p-.vcxproj-p.vcxproj /D ~"_s);
        row("this file", "$(MSBuildThisFile);$(MSBuildThisFileDirectory);$(MSBuildThisFileName)",
            u"p.vcxproj /D ~/ /D p"_s);
        row("folders", "$(OutDir);$(IntDir);$(PlatformShortName)", u"~/Debug\\ /D Debug\\ /D x86"_s);
        row("environment", "$(CONVERTER_TEST)", u"from outside"_s);
        row("of the user", "$(mine);$(Twice)", u"one /D two /D one /D two"_s);
        row("escapes", "A=%3B;B=%22x%22;C=\\\"y\\\";%zz", u"A=; /D B=\"x\" /D C=\"y\" /D %zz"_s);
        row("metadata of the file", "%(Filename)%(Extension);%(ClCompile.Identity)", u"a.cpp /D a.cpp"_s);
        row("own list", "$(Mine);$(List)", u"one /D two /D added"_s);
        row("unknown", "A;x$(Unknown_1)y;B", u"A /D B"_s,
            u"p.vcxproj:4: \"x$(Unknown_1)y\" is left out: $(Unknown_1) is unknown"_s);
        row("unknown inside", "$(Derived)", QString(), u"\"p$(Unknown_2)\" is left out: $(Unknown_2) is unknown"_s);
        row("unknown function", "$(Mine.PadLeft(7))", QString(), u"$(Mine.PadLeft(7)) is unknown"_s);
        row("registry", "$(Registry:HKEY_LOCAL_MACHINE\\x@y)", QString(), u"is unknown"_s);
        row("compiler's own", "$(VC_IncludePath);$(WindowsSDK_IncludePath);$(NOINHERIT)", QString());
        row("functions",
            "$([System.IO.Path]::Combine('a', `b`));$([MSBuild]::NormalizePath('$(ProjectDir)', 'x', '..'))",
            u"a/b /D ~"_s);
        row("above", "$([MSBuild]::GetDirectoryNameOfFileAbove('$(ProjectDir)sub', 'p.vcxproj'))", u"~"_s);
        row("no end", "A;$(Mine", u"A /D $(Mine"_s);
        row("nested without end", QByteArray("$(A.Replace('").repeated(500), u"$(A.Replace('"_s.repeated(500));
    }

    void expandsMacros()
    {
        const auto [text, words, told] = fetched<QByteArray, QString, QString>("text", "words", "told");
        qputenv("CONVERTER_TEST", "from outside");
        const Installation place;
        place.write(
            u"work/p.vcxproj"_s,
            oneSource("<PropertyGroup><Mine>one;two</Mine><Twice>$(MINE)</Twice><Derived>p$(Unknown_2)</Derived>"
                      "<List>$(List);added</List></PropertyGroup>\n",
                      "<PreprocessorDefinitions>" + text + "</PreprocessorDefinitions>"));
        const Reading reading(place, u"p.vcxproj"_s);
        QCOMPARE(reading.error, QString());
        QCOMPARE(reading.own(u"a.cpp"_s), words.isEmpty() ? words : u"/D "_s + words);
        QVERIFY2(told.isEmpty() ? !reading.notices.contains("warning"_L1) : reading.notices.contains(told),
                 qPrintable(reading.notices));
    }

    void tellsOfBrokenInput_data()
    {
        const TestRows<QString, QByteArray, QString, bool> row("file", "contents", "told", "isFatal");
        const auto import = [](const QByteArray& path) {
            return oneSource("<Import Project=\"" + path + "\"/>\n", "");
        };
        row("missing import", u"p.vcxproj"_s, import("..\\none\\x.props"),
            u"/none/x.props is left out: the file does not exist"_s);
        row("folder imported", u"p.vcxproj"_s, import("sub"), u"~/p.vcxproj:3: the import of ~/sub is left out"_s);
        row("unknown macro in an import", u"p.vcxproj"_s, import("$(Where)\\x.props"),
            u"~/p.vcxproj:3: \"$(Where)\\x.props\" is left out: $(Where) is unknown"_s);
        row("cycle", u"p.vcxproj"_s, import("cycle.props"),
            u"~/sub/back.props:2: the import of ~/cycle.props is left out: it imports itself"_s);
        row("itself", u"p.vcxproj"_s, import("P.VCXPROJ"), u"~/p.vcxproj:3: the import of ~/p.vcxproj is left out"_s);
        row("broken import", u"p.vcxproj"_s, import("broken.props"), u"~/broken.props:2:"_s, true);
        row("not a sheet", u"p.vcxproj"_s, import("other.xml"), u"~/other.xml:1: <html> is left out"_s);
        row("broken project", u"p.vcxproj"_s, "<Project>\n<ItemGroup></Project>", u"~/p.vcxproj:2:"_s, true);
        row("cut off", u"p.vcxproj"_s, project("").chopped(12), u"~/p.vcxproj:2:"_s, true);
        row("empty", u"p.vcxproj"_s, "", u"~/p.vcxproj:1:1: "_s, true);
        row("document type", u"p.vcxproj"_s, "<!DOCTYPE x [<!ENTITY a \"b\">]>\n<Project/>",
            u"~/p.vcxproj:1:31: a document type declaration has no place here"_s, true);
        row("nested", u"p.vcxproj"_s, QByteArray("<a>\n").repeated(5000), u"~/p.vcxproj:101:4: elements are nested"_s,
            true);
        row("macro without end", u"p.vcxproj"_s,
            oneSource("<PropertyGroup><A>aaaaaaaaaa</A>" + QByteArray("<A>$(A)$(A)</A>").repeated(60) +
                          "</PropertyGroup>",
                      ""),
            u"~/p.vcxproj: a macro grows without end"_s, true);
        row("list of the build", u"p.vcxproj"_s, project("<ItemGroup><ClCompile Include=\"@(Made)\"/></ItemGroup>"),
            u"~/p.vcxproj:3: \"@(Made)\" is left out"_s);
        row("whole disk", u"p.vcxproj"_s, project("<ItemGroup><ClCompile Include=\"\\**\\*.cpp\"/></ItemGroup>"),
            u"~/p.vcxproj:3: \"\\**\\*.cpp\" is left out: no file matches"_s);
        const QByteArray head = "Microsoft Visual Studio Solution File, Format Version 12.00\n";
        row("no solution", u"s.sln"_s, "\n\nProject\n", u"~/s.sln:3: not a solution"_s, true);
        row("empty solution", u"s.sln"_s, "", u"~/s.sln:1: not a solution"_s, true);
        row("no project", u"s.sln"_s, head, u"~/s.sln: none of its projects is left"_s, true);
        row("project line", u"s.sln"_s, head + "Project(\"{8}\") = \"Lib\", Lib.vcxproj\nEndProject\n",
            u"~/s.sln:2: a project is left out: the line is not understood"_s, true);
        row("project's end", u"s.sln"_s, head + "Project(\"{8}\") = \"p\", \"good.vcxproj\", \"{2}\"\n",
            u"~/s.sln:2: what follows the project is left out: it has no end"_s);
        row("section's end", u"s.sln"_s,
            head + "Project(\"{8}\") = \"p\", \"good.vcxproj\", \"{2}\"\nEndProject\nGlobalSection(x) = preSolution\n",
            u"~/s.sln:4: the rest of section x is left out: it has no end"_s);
        row("configurations", u"s.sln"_s,
            head + "Project(\"{8}\") = \"p\", \"good.vcxproj\", \"{2}\"\nEndProject\n"
                   "GlobalSection(SolutionConfigurationPlatforms) = preSolution\nDebug\nDebug|x64 = "
                   "Debug|x64\nEndGlobalSection\n"
                   "GlobalSection(ProjectConfigurationPlatforms) = postSolution\n{2}.Debug|x64.ActiveCfg = Debug\n"
                   "{2}.Debug|x64.Build.0 = Debug|x64\nEndGlobalSection\n",
            u"~/s.sln:5: a configuration is left out: the line is not understood: Debug\n"
            "warning: ~/s.sln:9: a project's configuration is left out"_s);
        row("xml solution", u"s.slnx"_s, "<Project/>", u"~/s.slnx:1: not a solution: it begins with <Project>"_s, true);
        row("xml project", u"s.slnx"_s, "<Solution>\n<Project/>\n<Project Path=\"good.vcxproj\"/></Solution>",
            u"~/s.slnx:2: a project is left out: it has no Path"_s);
    }

    void tellsOfBrokenInput()
    {
        const auto [file, contents, told, isFatal] =
            fetched<QString, QByteArray, QString, bool>("file", "contents", "told", "isFatal");
        const Installation place;
        place.write(u"work/cycle.props"_s, "<Project>\n<Import Project=\"sub\\back.props\"/></Project>");
        place.write(u"work/sub/back.props"_s, "<Project>\n<Import Project=\"..\\cycle.props\"/></Project>");
        place.write(u"work/broken.props"_s, "<Project>\n<PropertyGroup>&none;</PropertyGroup></Project>");
        place.write(u"work/other.xml"_s, "<html/>");
        place.write(u"work/good.vcxproj"_s, oneSource({}, {}));
        place.write(u"work/"_s + file, contents);
        const Reading reading(place, file);
        QVERIFY2(folded(reading.notices + reading.error).contains(folded(told)),
                 qPrintable(reading.notices + reading.error));
        QCOMPARE(!reading.error.isEmpty(), isFatal);
    }
};

KOVRA_TEST(VisualStudioTest)
#include "VisualStudioTest.moc"

// SPDX-License-Identifier: MIT
#include "ClCommand.h"
#include "../CommandWords.h"
#include "ItemReader.h"
#include "PathFinder.h"
#include "ProjectContext.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// What an option of the project stands for on the command line.
struct Switch
{
    QLatin1StringView setting;
    QLatin1StringView value;
    QLatin1StringView word;
};

constexpr std::array switches = {
    Switch{"exceptionhandling"_L1, "Sync"_L1, "/EHsc"_L1},
    Switch{"exceptionhandling"_L1, "SyncCThrow"_L1, "/EHs"_L1},
    Switch{"exceptionhandling"_L1, "Async"_L1, "/EHa"_L1},
    Switch{"runtimetypeinfo"_L1, "true"_L1, "/GR"_L1},
    Switch{"runtimetypeinfo"_L1, "false"_L1, "/GR-"_L1},
    Switch{"runtimelibrary"_L1, "MultiThreaded"_L1, "/MT"_L1},
    Switch{"runtimelibrary"_L1, "MultiThreadedDebug"_L1, "/MTd"_L1},
    Switch{"runtimelibrary"_L1, "MultiThreadedDLL"_L1, "/MD"_L1},
    Switch{"runtimelibrary"_L1, "MultiThreadedDebugDLL"_L1, "/MDd"_L1},
    Switch{"compileas"_L1, "CompileAsC"_L1, "/TC"_L1},
    Switch{"compileas"_L1, "CompileAsCpp"_L1, "/TP"_L1},
    Switch{"compileas"_L1, "CompileAsCppModule"_L1, "/TP"_L1},
    Switch{"compileas"_L1, "CompileAsCppModuleInternalPartition"_L1, "/TP"_L1},
    Switch{"treatwchar_tasbuiltintype"_L1, "false"_L1, "/Zc:wchar_t-"_L1},
    Switch{"openmpsupport"_L1, "true"_L1, "/openmp"_L1},
    Switch{"compileasmanaged"_L1, "true"_L1, "/clr"_L1},
    Switch{"compileaswinrt"_L1, "true"_L1, "/ZW"_L1},
    Switch{"undefineallpreprocessordefinitions"_L1, "true"_L1, "/u"_L1},
    Switch{"floatingpointmodel"_L1, "Fast"_L1, "/fp:fast"_L1},
    Switch{"basicruntimechecks"_L1, "StackFrameRuntimeCheck"_L1, "/RTCs"_L1},
    Switch{"basicruntimechecks"_L1, "UninitializedLocalUsageCheck"_L1, "/RTCu"_L1},
    Switch{"basicruntimechecks"_L1, "EnableFastChecks"_L1, "/RTC1"_L1},
    Switch{"enableenhancedinstructionset"_L1, "NoExtensions"_L1, "/arch:IA32"_L1},
    Switch{"enableenhancedinstructionset"_L1, "StreamingSIMDExtensions"_L1, "/arch:SSE"_L1},
    Switch{"enableenhancedinstructionset"_L1, "StreamingSIMDExtensions2"_L1, "/arch:SSE2"_L1},
    Switch{"enableenhancedinstructionset"_L1, "AdvancedVectorExtensions"_L1, "/arch:AVX"_L1},
    Switch{"enableenhancedinstructionset"_L1, "AdvancedVectorExtensions2"_L1, "/arch:AVX2"_L1},
    Switch{"enableenhancedinstructionset"_L1, "AdvancedVectorExtensions512"_L1, "/arch:AVX512"_L1},
    Switch{"languagestandard"_L1, "stdcpp14"_L1, "/std:c++14"_L1},
    Switch{"languagestandard"_L1, "stdcpp17"_L1, "/std:c++17"_L1},
    Switch{"languagestandard"_L1, "stdcpp20"_L1, "/std:c++20"_L1},
    Switch{"languagestandard"_L1, "stdcpp23"_L1, "/std:c++23preview"_L1},
    Switch{"languagestandard"_L1, "stdcpplatest"_L1, "/std:c++latest"_L1},
    Switch{"languagestandard_c"_L1, "stdc11"_L1, "/std:c11"_L1},
    Switch{"languagestandard_c"_L1, "stdc17"_L1, "/std:c17"_L1},
    Switch{"languagestandard_c"_L1, "stdclatest"_L1, "/std:clatest"_L1},
};

bool isSame(const QString& text, QLatin1StringView other)
{
    return text.compare(other, Qt::CaseInsensitive) == 0;
}

bool isC(const SourceItem& item)
{
    const QString compileAs = item.text(u"compileas"_s);
    return isSame(compileAs, "CompileAsC"_L1) ||
           (!compileAs.startsWith("CompileAsCpp"_L1) && item.path.endsWith(".c"_L1, Qt::CaseInsensitive));
}

// As the compiler lies in its own installation: that tells its version and what it compiles for.
QStringList compiler(const Properties& properties)
{
    static const QHash<QString, QString> versions{{u"v140"_s, u"14.00"_s},
                                                  {u"v141"_s, u"14.16"_s},
                                                  {u"v142"_s, u"14.29"_s},
                                                  {u"v143"_s, u"14.39"_s},
                                                  {u"v145"_s, u"14.50"_s}};
    const QString toolset = properties.text(u"PlatformToolset"_s).toLower();
    const QString machine = properties.text(u"PlatformShortName"_s).toLower();
    if (toolset.startsWith("clang"_L1) || toolset.startsWith("llvm"_L1)) {
        return {u"clang-cl.exe"_s, machine == "x86"_L1 ? u"-m32"_s : u"-m64"_s};
    }
    return {u"MSVC/%1/bin/Hostx64/%2/cl.exe"_s.arg(
        versions.value(toolset.first(std::min(toolset.size(), qsizetype(4))), u"14.39"_s), machine)};
}

/// The words of one command while it is put together.
class CommandLine
{
public:
    CommandLine(const SourceItem& source, ProjectContext& project)
        : item(source)
        , context(project)
    {
    }

    void addSwitches()
    {
        const QLatin1StringView otherStandard = isC(item) ? "languagestandard"_L1 : "languagestandard_c"_L1;
        for (const Switch& candidate : switches) {
            if (candidate.setting != otherStandard && isSame(item.text(candidate.setting), candidate.value)) {
                words += candidate.word;
            }
        }
    }

    void add(QLatin1StringView option, const Setting& list)
    {
        const QStringList entries = context.entries(list);
        for (const QString& entry : entries) {
            words += {option, unquoted(entry)};
        }
    }

    void addPaths(QLatin1StringView option, const Setting& list)
    {
        const QStringList entries = context.entries(list);
        for (const QString& entry : entries) {
            words += {option, context.paths.find(context.projectFolder, QString(entry).remove(u'"'))};
        }
    }

    // The compiler looks for a bare name in its include folders, too.
    void addForcedIncludes(const Setting& list)
    {
        const QStringList entries = context.entries(list);
        for (const QString& entry : entries) {
            const QString name = QString(entry).remove(u'"');
            const QString path = context.paths.find(context.projectFolder, name);
            words += {u"/FI"_s, QFileInfo::exists(path) ? path : QString(name).replace(u'\\', u'/')};
        }
    }

    void addWritten(const Setting& options)
    {
        Setting known = options;
        if (UnknownMacros::isIn(known.text)) {
            context.entries(known);
            known.text = UnknownMacros::removed(known.text);
        }
        CommandWords split;
        split.split(known.text.toUtf8(), CommandWords::Rules::Windows);
        words += split.texts();
    }

    Setting property(const QString& name) const { return {context.properties.text(name), context.projectFile, 1}; }

    QStringList words;

private:
    // A define's quotes are written with or without a backslash; the compiler sees them either way.
    static QString unquoted(const QString& define) { return QString(define).replace("\\\""_L1, "\""_L1); }

    const SourceItem& item;
    ProjectContext& context;
};

} // namespace

Settings ClCommand::usualSettings(const ProjectContext& context)
{
    const Properties& properties = context.properties;
    QString defines;
    if (isSame(properties.text(u"ConfigurationType"_s), "DynamicLibrary"_L1)) {
        defines += "_WINDLL;"_L1;
    }
    if (isSame(properties.text(u"UseOfMfc"_s), "Dynamic"_L1)) {
        defines += "_AFXDLL;"_L1;
    }
    if (isSame(properties.text(u"UseOfAtl"_s), "Dynamic"_L1)) {
        defines += "_ATL_DLL;"_L1;
    }
    const QString characters = properties.text(u"CharacterSet"_s);
    if (isSame(characters, "Unicode"_L1)) {
        defines += "_UNICODE;UNICODE;"_L1;
    } else if (isSame(characters, "MultiByte"_L1)) {
        defines += "_MBCS;"_L1;
    }
    const bool isDebug = isSame(properties.text(u"UseDebugLibraries"_s), "true"_L1);
    const auto setting = [&](const QString& text) { return Setting{text, context.projectFile, 1}; };
    return {{u"preprocessordefinitions"_s, setting(defines)},
            {u"runtimelibrary"_s, setting(isDebug ? u"MultiThreadedDebugDLL"_s : u"MultiThreadedDLL"_s)},
            {u"exceptionhandling"_s, setting(u"Sync"_s)},
            {u"runtimetypeinfo"_s, setting(u"true"_s)}};
}

QStringList ClCommand::words(const SourceItem& item, ProjectContext& context)
{
    CommandLine line(item, context);
    line.words = compiler(context.properties);
    line.addSwitches();
    line.addPaths("/I"_L1, item.settings.value(u"additionalincludedirectories"_s));
    line.add("/D"_L1, item.settings.value(u"preprocessordefinitions"_s));
    line.add("/U"_L1, item.settings.value(u"undefinepreprocessordefinitions"_s));
    line.addForcedIncludes(item.settings.value(u"forcedincludefiles"_s));
    // A project that calls another build tool tells what that one uses.
    if (isSame(context.properties.text(u"ConfigurationType"_s), "Makefile"_L1)) {
        line.addPaths("/I"_L1, line.property(u"NMakeIncludeSearchPath"_s));
        line.add("/D"_L1, line.property(u"NMakePreprocessorDefinitions"_s));
        line.addForcedIncludes(line.property(u"NMakeForcedIncludes"_s));
        line.addWritten(line.property(u"AdditionalOptions"_s));
    }
    line.addWritten(item.settings.value(u"additionaloptions"_s));
    line.addPaths("/external:I"_L1, line.property(u"ExternalIncludePath"_s));
    line.addPaths("/I"_L1, line.property(u"IncludePath"_s));
    return line.words;
}

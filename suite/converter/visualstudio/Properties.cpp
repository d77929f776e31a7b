// SPDX-License-Identifier: MIT
#include "Properties.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// From the private use area: no text that a build description needs holds them.
constexpr QChar markStart(0xE000);
constexpr QChar markEnd(0xE001);

// Set by the build tools' own files, which are not there; or marks of old projects without a meaning today.
constexpr std::array compilersOwn = {"devenvdir"_L1,
                                     "excludepath"_L1,
                                     "executablepath"_L1,
                                     "externalincludepath"_L1,
                                     "frameworksdkdir"_L1,
                                     "includepath"_L1,
                                     "inherit"_L1,
                                     "librarypath"_L1,
                                     "llvminstalldir"_L1,
                                     "msbuildextensionspath"_L1,
                                     "msbuildextensionspath32"_L1,
                                     "msbuildsdkspath"_L1,
                                     "msbuildtoolspath"_L1,
                                     "netfxkitsdir"_L1,
                                     "noinherit"_L1,
                                     "referencepath"_L1,
                                     "sourcepath"_L1,
                                     "universalcrt_includepath"_L1,
                                     "universalcrtsdkdir"_L1,
                                     "userrootdir"_L1,
                                     "vc_includepath"_L1,
                                     "vcinstalldir"_L1,
                                     "vctargetspath"_L1,
                                     "vctoolsinstalldir"_L1,
                                     "vsinstalldir"_L1,
                                     "windowssdk_includepath"_L1,
                                     "windowssdkdir"_L1};

QString toolsVersion(const QString& toolset)
{
    static const QRegularExpression number(u"^v(\\d\\d)(\\d)"_s);
    const QRegularExpressionMatch match = number.match(toolset);
    const int major = match.captured(1).toInt();
    const int minor = match.captured(2).toInt();
    if (major < 14) {
        return u"%1.0"_s.arg(match.hasMatch() ? major : 17);
    }
    static constexpr std::array afterFourteen = {"14.0"_L1, "15.0"_L1, "16.0"_L1, "17.0"_L1};
    return minor < int(afterFourteen.size()) ? QString(afterFourteen[std::size_t(minor)]) : u"18.0"_s;
}

} // namespace

void Properties::fix(const QString& name, const QString& value)
{
    fixed.insert(name.toLower(), value);
}

void Properties::set(const QString& name, const QString& value)
{
    values.insert(name.toLower(), value);
}

std::optional<QString> Properties::value(const QString& name) const
{
    const QString key = name.toLower();
    for (const QHash<QString, QString>* table : {&fixed, &values}) {
        if (const auto found = table->find(key); found != table->end()) {
            return *found;
        }
    }
    if (std::optional<QString> found = usual(key)) {
        return found;
    }
    if (qEnvironmentVariableIsSet(name.toUtf8().constData())) {
        return qEnvironmentVariable(name.toUtf8().constData());
    }
    return {};
}

std::optional<QString> Properties::usual(const QString& key) const
{
    const QString platform = text(u"Platform"_s);
    const bool isWin32 = platform.compare("Win32"_L1, Qt::CaseInsensitive) == 0;
    const QString folder = isWin32 ? text(u"Configuration"_s) : platform + u'\\' + text(u"Configuration"_s);
    if (key == "outdir"_L1) {
        return value(u"SolutionDir"_s).value_or(text(u"ProjectDir"_s)) + folder + u'\\';
    }
    if (key == "intdir"_L1) {
        return folder + u'\\';
    }
    if (key == "projectname"_L1 || key == "rootnamespace"_L1) {
        return text(u"MSBuildProjectName"_s);
    }
    if (key == "targetname"_L1) {
        return text(u"ProjectName"_s);
    }
    if (key == "targetdir"_L1) {
        return text(u"OutDir"_s);
    }
    if (key == "platformname"_L1) {
        return platform;
    }
    if (key == "configurationname"_L1) {
        return text(u"Configuration"_s);
    }
    if (key == "platformshortname"_L1 || key == "platformtarget"_L1) {
        return isWin32 ? u"x86"_s : platform;
    }
    if (key == "platformarchitecture"_L1) {
        return platform.endsWith("64"_L1) ? u"64"_s : u"32"_s;
    }
    if (key == "visualstudioversion"_L1) {
        return toolsVersion(text(u"PlatformToolset"_s));
    }
    return {};
}

QString UnknownMacros::mark(const QString& name)
{
    return markStart + name + markEnd;
}

bool UnknownMacros::isIn(const QString& text)
{
    return text.contains(markStart);
}

QStringList UnknownMacros::in(const QString& text)
{
    static const QRegularExpression marks(u"\uE000([^\uE001]*)\uE001"_s);
    QStringList names;
    for (const QRegularExpressionMatch& match : marks.globalMatch(text)) {
        names += u"$(%1)"_s.arg(match.captured(1));
    }
    names.removeDuplicates();
    return names;
}

QString UnknownMacros::removed(QString text)
{
    static const QRegularExpression marks(u"\uE000[^\uE001]*\uE001?"_s);
    return text.remove(marks);
}

QString UnknownMacros::written(QString text)
{
    return text.replace(markStart, u"$("_s).replace(markEnd, u")"_s);
}

bool UnknownMacros::areTheCompilers(const QString& text)
{
    const QStringList names = in(text);
    return std::ranges::all_of(names, [](const QString& name) {
        return std::ranges::find(compilersOwn, name.sliced(2).chopped(1).toLower()) != compilersOwn.end();
    });
}

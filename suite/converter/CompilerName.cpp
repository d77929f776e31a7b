// SPDX-License-Identifier: MIT
#include "CompilerName.h"
#include "Paths.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

// In lower case, without folder and .exe.
QString programName(const QString& program)
{
    QString name = Paths::nameOf(program).toString().toLower();
    if (name.endsWith(".exe"_L1)) {
        name.chop(4);
    }
    return name;
}

bool isLauncher(const QString& name)
{
    static const QSet<QString> launchers{u"ccache"_s,    u"sccache"_s,    u"distcc"_s,    u"icecc"_s,     u"icerun"_s,
                                         u"gomacc"_s,    u"buildcache"_s, u"fastcache"_s, u"cachecc1"_s,  u"clcache"_s,
                                         u"rewrapper"_s, u"colorgcc"_s,   u"env"_s,       u"nice"_s,      u"time"_s,
                                         u"libtool"_s,   u"glibtool"_s,   u"pump"_s,      u"scan-build"_s};
    return launchers.contains(name);
}

bool isShell(const QString& name)
{
    return name == "sh"_L1 || name == "bash"_L1 || name == "dash"_L1;
}

// Without a compiler's name these take the usual one.
bool knowsCompiler(const QString& name)
{
    return name == "distcc"_L1 || name == "icecc"_L1;
}

// Options and settings that belong to a launcher.
qsizetype afterLauncher(const QStringList& words, qsizetype at)
{
    static const QRegularExpression setting(u"^[A-Za-z_][A-Za-z0-9_]*="_s);
    while (at < words.size() && (words[at].startsWith(u'-') || setting.match(words[at]).hasMatch())) {
        const bool isNumber = words[at] == "-n"_L1;
        at += isNumber ? 2 : 1;
    }
    return at;
}

// "cmake -E env A=B cl.exe" and "cmake -E __run_co_compile --tidy=... -- cl.exe".
qsizetype afterCMake(const QStringList& words, qsizetype at)
{
    const qsizetype separator = words.indexOf(u"--"_s, at);
    if (words.value(at + 2) == "__run_co_compile"_L1 && separator >= 0) {
        return separator + 1;
    }
    return afterLauncher(words, at + 3);
}

/// The command follows as words of its own, or as one that the reader has divided.
bool takesACommand(const QString& shell, const QString& option)
{
    return (isShell(shell) && option == "-c"_L1) ||
           (shell == "cmd"_L1 && option.compare("/c"_L1, Qt::CaseInsensitive) == 0);
}

} // namespace

qsizetype CompilerName::find(const QStringList& words)
{
    qsizetype at = 0;
    while (at < words.size()) {
        const QString name = programName(words[at]);
        qsizetype next = at;
        if (knowsCompiler(name) && words.value(at + 1).startsWith(u'-')) {
            return at;
        }
        if (isLauncher(name)) {
            next = afterLauncher(words, at + 1);
        } else if (isShell(name) && isLauncher(programName(words.value(at + 1)))) {
            next = at + 1;
        } else if (takesACommand(name, words.value(at + 1))) {
            next = at + 2;
        } else if (name == "cmake"_L1 && words.value(at + 1) == "-E"_L1) {
            next = afterCMake(words, at);
        }
        // A launcher's name alone is a compiler that is reached through it.
        if (next == at || next >= words.size()) {
            return at;
        }
        at = next;
    }
    return 0;
}

CompilerName::Family CompilerName::family(const QString& program)
{
    static const QRegularExpression slashes(u"^(?:.+-)?(clang-cl|cl|icl|icx-cl)(?:-?[0-9]+(?:\\.[0-9]+)*)?$"_s);
    static const QRegularExpression dashes(u"^(?:.+-)?(gcc|g\\+\\+|cc|c\\+\\+|clang|clang\\+\\+|icx|icpx|emcc|em\\+\\+)"
                                           "(?:-?[0-9]+(?:\\.[0-9]+)*)?(?:-posix|-win32)?$"_s);
    const QString name = programName(program);
    if (const auto match = slashes.match(name); match.hasMatch()) {
        return match.captured(1) == "clang-cl"_L1 ? Family::ClangCl : Family::Cl;
    }
    if (const auto match = dashes.match(name); match.hasMatch()) {
        const QString kind = match.captured(1);
        return kind.startsWith("clang"_L1) || kind.startsWith("em"_L1) || kind.startsWith("ic"_L1) ? Family::Clang
                                                                                                   : Family::Gnu;
    }
    return Family::Other;
}

bool CompilerName::isForCppOnly(const QString& program)
{
    static const QRegularExpression name(
        u"(?:^|-)(?:g\\+\\+|c\\+\\+|clang\\+\\+|icpx|em\\+\\+)(?:-?[0-9.]+)?(?:-posix|-win32)?$"_s);
    return name.match(programName(program)).hasMatch();
}

bool CompilerName::hasSlashOptions(Family family)
{
    return family == Family::Cl || family == Family::ClangCl;
}

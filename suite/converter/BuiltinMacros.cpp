// SPDX-License-Identifier: MIT
#include "BuiltinMacros.h"
#include "CompilerSetup.h"
#include "Paths.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

enum class Cpu { X64, X86, Arm64, Arm, Riscv64 };

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

bool mentions(const CompilerSetup& setup, const QString& pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    return expression.match(setup.program + u' ' + setup.target.join(u' ')).hasMatch();
}

Cpu cpuOf(const CompilerSetup& setup)
{
    if (mentions(setup, u"aarch64|arm64"_s)) {
        return Cpu::Arm64;
    }
    if (mentions(setup, u"(^|[/\\\\ =_-])arm(v[0-9]|[-_]|$)"_s)) {
        return Cpu::Arm;
    }
    if (mentions(setup, u"riscv64"_s)) {
        return Cpu::Riscv64;
    }
    const bool isX86 = setup.target.contains(u"-m32"_s) || mentions(setup, u"i[3-6]86|[/\\\\]x86[/\\\\][^/\\\\]*$"_s);
    return isX86 ? Cpu::X86 : Cpu::X64;
}

bool isForWindows(const CompilerSetup& setup)
{
    // Also on Windows there are compilers for other systems.
    const bool isForOther = mentions(setup, u"linux|none|eabi|elf|apple|darwin"_s);
    return CompilerName::hasSlashOptions(setup.family) || mentions(setup, u"mingw|windows|win32"_s) ||
           (setup.windows && !isForOther);
}

QStringList microsoftMacros(const CompilerSetup& setup, Cpu cpu)
{
    // The folder of the tools tells their version: 14.38 is 1938.
    static const QRegularExpression toolset(u"MSVC[/\\\\]14\\.([0-9]{2})"_s, QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = toolset.match(setup.program);
    const QString version = u"19"_s + (match.hasMatch() ? match.captured(1) : u"39"_s);
    QStringList result{u"_MSC_VER="_s + version,   u"_MSC_FULL_VER="_s + version + u"00000"_s,
                       u"_MSC_BUILD=0"_s,          u"_MSC_EXTENSIONS=1"_s,
                       u"_INTEGRAL_MAX_BITS=64"_s, u"_WIN32=1"_s};
    switch (cpu) {
    case Cpu::X86:
        result += words("_M_IX86=600 _M_IX86_FP=2");
        break;
    case Cpu::Arm:
        result += words("_M_ARM=7 _M_ARMT=7");
        break;
    case Cpu::Arm64:
        result += words("_WIN64=1 _M_ARM64=1");
        break;
    default:
        result += words("_WIN64=1 _M_X64=100 _M_AMD64=100");
    }
    if (!setup.isC) {
        static const QRegularExpression year(u"\\+\\+([0-9]{2})"_s);
        const QString standard = year.match(setup.standard).captured(1);
        const QString language = standard == "17"_L1   ? u"201703L"_s
                                 : standard == "20"_L1 ? u"202002L"_s
                                 : standard == "23"_L1 ? u"202004L"_s
                                                       : u"201402L"_s;
        result += {u"_MSVC_LANG="_s + language, u"_NATIVE_WCHAR_T_DEFINED=1"_s, u"_WCHAR_T_DEFINED=1"_s,
                   u"_CPPRTTI=1"_s, u"__BOOL_DEFINED=1"_s};
    }
    return result;
}

QStringList cpuMacros(Cpu cpu)
{
    switch (cpu) {
    case Cpu::X64:
        return words("__x86_64__=1 __x86_64=1 __amd64__=1 __amd64=1 __SSE__=1 __SSE2__=1");
    case Cpu::X86:
        return words("__i386__=1 __i386=1");
    case Cpu::Arm64:
        return words("__aarch64__=1 __ARM_ARCH=8 __ARM_NEON=1");
    case Cpu::Arm:
        return words("__arm__=1 __ARM_ARCH=7");
    case Cpu::Riscv64:
        return words("__riscv=1 __riscv_xlen=64");
    }
    return {};
}

QStringList sizeMacros(bool is64, bool isWindows)
{
    QStringList result = words(
        "__CHAR_BIT__=8 __ORDER_LITTLE_ENDIAN__=1234 __ORDER_BIG_ENDIAN__=4321 __ORDER_PDP_ENDIAN__=3412 "
        "__BYTE_ORDER__=1234 __FLOAT_WORD_ORDER__=1234 __SCHAR_MAX__=127 __SHRT_MAX__=32767 __INT_MAX__=2147483647 "
        "__LONG_LONG_MAX__=9223372036854775807LL __SIZEOF_SHORT__=2 __SIZEOF_INT__=4 __SIZEOF_LONG_LONG__=8 "
        "__SIZEOF_FLOAT__=4 __SIZEOF_DOUBLE__=8");
    const bool hasLongOf64 = is64 && !isWindows;
    result += hasLongOf64 ? words("_LP64=1 __LP64__=1 __SIZEOF_LONG__=8 __LONG_MAX__=9223372036854775807L")
                          : words("__SIZEOF_LONG__=4 __LONG_MAX__=2147483647L");
    result += is64 ? words("__SIZEOF_POINTER__=8 __SIZEOF_SIZE_T__=8 __SIZEOF_PTRDIFF_T__=8 __SIZEOF_INT128__=16")
                   : words("__SIZEOF_POINTER__=4 __SIZEOF_SIZE_T__=4 __SIZEOF_PTRDIFF_T__=4");
    result += isWindows     ? u"__SIZEOF_WCHAR_T__=2"_s
              : hasLongOf64 ? u"__SIZE_TYPE__=long unsigned int"_s
                            : u"__SIZE_TYPE__=unsigned int"_s;
    return result;
}

} // namespace

QStringList builtinMacros(const CompilerSetup& setup)
{
    const Cpu cpu = cpuOf(setup);
    if (CompilerName::hasSlashOptions(setup.family)) {
        return microsoftMacros(setup, cpu);
    }
    const bool is64 = cpu != Cpu::X86 && cpu != Cpu::Arm;
    QStringList result = setup.family == CompilerName::Family::Clang
                             ? words("__GNUC__=4 __GNUC_MINOR__=2 __GNUC_PATCHLEVEL__=1 __clang__=1 "
                                     "__clang_major__=14 __clang_minor__=0 __clang_patchlevel__=0")
                             : words("__GNUC__=12 __GNUC_MINOR__=2 __GNUC_PATCHLEVEL__=0");
    if (isForWindows(setup)) {
        result += words("_WIN32=1 WIN32=1 __WIN32__=1 __MINGW32__=1");
        if (is64) {
            result += words("_WIN64=1 WIN64=1 __WIN64__=1 __MINGW64__=1");
        }
    } else if (mentions(setup, u"apple|darwin"_s)) {
        result += words("__APPLE__=1 __MACH__=1");
    } else if (!mentions(setup, u"none|eabi|elf"_s) || mentions(setup, u"linux"_s)) {
        result += words("__linux__=1 __linux=1 __gnu_linux__=1 __unix__=1 __unix=1 __ELF__=1");
    }
    if (!setup.isC) {
        result += words("__GNUG__=12 __EXCEPTIONS=1 __GXX_RTTI=1 _GNU_SOURCE=1");
    }
    return result + cpuMacros(cpu) + sizeMacros(is64, isForWindows(setup));
}

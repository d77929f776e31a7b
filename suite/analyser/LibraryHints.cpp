// SPDX-License-Identifier: MIT
#include "LibraryHints.h"
#include "AnalysisOptions.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A library is used where one of these matches a whole macro name, or a whole folder name of an include path; one that
/// tests are written with also where a source includes something from such a folder.
struct Hint
{
    const char* library;
    const char* macros;
    const char* folders;
    const char* includes = "";
};

constexpr std::array hints = {
    Hint{"posix", "__unix__|__linux__|__APPLE__|_POSIX_C_SOURCE|_POSIX_SOURCE|_XOPEN_SOURCE", ""},
    Hint{"gnu", "_GNU_SOURCE|__GLIBC__", ""},
    Hint{"bsd", "__FreeBSD__|__OpenBSD__|__NetBSD__|_BSD_SOURCE", ""},
    Hint{"windows", "_WIN32|WIN32|_WIN64|_WINDOWS", ""},
    Hint{"mfc", "_AFXDLL", ""},
    Hint{"qt", "QT_[A-Z]+_LIB|QT_VERSION|QT_DLL", "qt[456]?|Qt(Core|Gui|Widgets)?(\\.framework)?"},
    Hint{"boost", "BOOST_[A-Z0-9_]+", "boost.*", "boost/test"},
    Hint{"gtk", "G_LOG_DOMAIN|GDK_[A-Z_]+|GTK_[A-Z_]+|GLIB_[A-Z_]+", "gtk-[234]\\.0|glib-2\\.0"},
    Hint{"wxwidgets", "__WX[A-Z]+__|wxUSE_GUI", "wx-?[0-9.]+"},
    Hint{"kde", "KCOREADDONS_LIB|K[A-Z]+_LIB", "KF[56]"},
    Hint{"sdl", "", "SDL[23]?"},
    Hint{"opencv2", "", "opencv[0-9]*"},
    Hint{"opengl", "", "GL|GLES[0-9]?"},
    Hint{"python", "", "python[23][0-9.]*"},
    Hint{"lua", "", "lua[0-9.]*"},
    Hint{"openssl", "OPENSSL_[A-Z_]+", "openssl.*"},
    Hint{"libcurl", "CURL_STATICLIB", "curl"},
    Hint{"sqlite3", "SQLITE_[A-Z_]+", "sqlite3?"},
    Hint{"googletest", "GTEST_[A-Z_]+", "gtest|googletest.*", "gtest|gmock"},
    Hint{"cppunit", "", "", "cppunit"},
    Hint{"cairo", "", "cairo"},
    Hint{"icu", "U_[A-Z]+_IMPLEMENTATION", "icu"},
    Hint{"libsigc++", "", "sigc\\+\\+-[0-9.]+"},
    Hint{"dpdk", "RTE_[A-Z_]+", "dpdk"},
    Hint{"openmp", "_OPENMP", ""},
};

/// What Qt calls a system that the compiler predefines one of these for.
struct SystemMacros
{
    const char* ofCompiler;
    const char* ofQt;
};

constexpr std::array systemMacros = {
    SystemMacros{"__linux__", "Q_OS_LINUX"},
    SystemMacros{"__APPLE__", "Q_OS_DARWIN Q_OS_MACOS"},
    SystemMacros{"__FreeBSD__", "Q_OS_FREEBSD"},
    SystemMacros{"__unix__|__linux__|__APPLE__", "Q_OS_UNIX"},
    SystemMacros{"_WIN32|WIN32|_WIN64", "Q_OS_WIN Q_OS_WIN32"},
    SystemMacros{"_WIN64", "Q_OS_WIN64"},
};

QString nameOf(const QString& define)
{
    return define.left(define.indexOf(u'=')).section(u'(', 0, 0);
}

QSet<QString> macroNames(const AnalysisOptions& options)
{
    QSet<QString> names;
    for (const QString& define : options.defines) {
        names += nameOf(define);
    }
    return names;
}

QSet<QString> folderNames(const AnalysisOptions& options)
{
    QSet<QString> names;
    for (const IncludeFolder& folder : options.folders) {
        const QStringList parts = QString(folder.path).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
        // A folder further up is where the project lies, not what it uses.
        for (const QString& part : parts.last(std::min<qsizetype>(parts.size(), 2))) {
            names += part;
        }
    }
    return names;
}

bool matches(const QSet<QString>& names, const char* pattern)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)));
    return *pattern &&
           std::ranges::any_of(names, [&](const QString& name) { return expression.match(name).hasMatch(); });
}

bool hasTarget(const AnalysisOptions& options, QLatin1StringView flag)
{
    return options.target.contains(flag);
}

QString windowsPlatform(const AnalysisOptions& options, const QSet<QString>& macros)
{
    const QString compiler = options.compiler.toLower();
    const bool is64 = macros.contains(u"_WIN64"_s) || compiler.contains("x86_64-w64-mingw"_L1);
    if (is64 && !hasTarget(options, "-m32"_L1)) {
        return u"win64"_s;
    }
    return macros.contains(u"UNICODE"_s) || macros.contains(u"_UNICODE"_s) ? u"win32W"_s : u"win32A"_s;
}

bool isForWindows(const AnalysisOptions& options, const QSet<QString>& macros)
{
    return macros.contains(u"_WIN32"_s) || macros.contains(u"_WIN64"_s) ||
           options.compiler.contains("mingw32"_L1, Qt::CaseInsensitive);
}

bool has32BitPointers(const AnalysisOptions& options)
{
    return options.defines.contains(u"__SIZEOF_POINTER__=4"_s) || hasTarget(options, "-m32"_L1) ||
           hasTarget(options, "-mx32"_L1);
}

} // namespace

QStringList LibraryHints::libraries(const AnalysisOptions& options)
{
    QStringList result = options.libraries;
    const QSet<QString> macros = macroNames(options);
    const QSet<QString> folders = folderNames(options);
    for (const Hint& hint : hints) {
        const QString library = QString::fromLatin1(hint.library);
        if (!result.contains(library) && (matches(macros, hint.macros) || matches(folders, hint.folders))) {
            result += library;
        }
    }
    return result;
}

QStringList LibraryHints::testFrameworks(const QString& source)
{
    // Includes stand at the head.
    constexpr qint64 head = 65536;
    QStringList result;
    QFile file(source);
    const QString text = file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.read(head)) : QString();
    for (const Hint& hint : hints) {
        const QRegularExpression include(u"[<\"](%1)/"_s.arg(QLatin1StringView(hint.includes)));
        if (*hint.includes && text.contains(include)) {
            result += QString::fromLatin1(hint.library);
        }
    }
    return result;
}

QStringList LibraryHints::defines(const AnalysisOptions& options)
{
    if (!libraries(options).contains(u"qt"_s)) {
        return {};
    }
    const QSet<QString> macros = macroNames(options);
    QStringList result;
    const auto add = [&](const QString& define) {
        if (!macros.contains(nameOf(define))) {
            result += define;
        }
    };
    const QSet<QString> folders = folderNames(options);
    if (folders.contains(u"qt6"_s) || folders.contains(u"qt5"_s)) {
        add(folders.contains(u"qt6"_s) ? u"Q_MOC_OUTPUT_REVISION=68"_s : u"Q_MOC_OUTPUT_REVISION=67"_s);
    }
    add(u"Q_DISABLE_COPY_MOVE(Class)="_s);
    for (const SystemMacros& system : systemMacros) {
        if (matches(macros, system.ofCompiler)) {
            for (const QString& name : QString::fromLatin1(system.ofQt).split(u' ')) {
                add(name);
            }
        }
    }
    return result;
}

QString LibraryHints::platform(const AnalysisOptions& options)
{
    if (!options.platform.isEmpty()) {
        return options.platform;
    }
    const QSet<QString> macros = macroNames(options);
    if (isForWindows(options, macros)) {
        return windowsPlatform(options, macros);
    }
    if (macros.contains(u"__AVR__"_s)) {
        return u"avr8"_s;
    }
    const QString unsignedChar = macros.contains(u"__CHAR_UNSIGNED__"_s) || hasTarget(options, "-funsigned-char"_L1)
                                     ? u"-unsigned"_s
                                     : QString();
    if (has32BitPointers(options)) {
        return macros.contains(u"__mips__"_s) ? u"mips32"_s : u"unix32"_s + unsignedChar;
    }
    const bool is64 = options.defines.contains(u"__SIZEOF_POINTER__=8"_s) || macros.contains(u"__LP64__"_s) ||
                      hasTarget(options, "-m64"_L1) || !unsignedChar.isEmpty();
    return is64 ? u"unix64"_s + unsignedChar : QString();
}

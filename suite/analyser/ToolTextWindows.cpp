// SPDX-License-Identifier: MIT
#include "ToolText.h"

#include <QProcess>

#include <string>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

// Not GetACP(): what this program's manifest says holds for itself alone.
UINT systemsPage(LCTYPE kind)
{
    DWORD page = CP_ACP;
    ::GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, kind | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&page),
                     sizeof page / sizeof(wchar_t));
    return page;
}

QByteArray inPage(const QString& text, UINT page)
{
    const std::wstring wide = text.toStdWString();
    const int length = ::WideCharToMultiByte(page, 0, wide.data(), int(wide.size()), nullptr, 0, nullptr, nullptr);
    QByteArray bytes(length, Qt::Uninitialized);
    ::WideCharToMultiByte(page, 0, wide.data(), int(wide.size()), bytes.data(), length, nullptr, nullptr);
    return bytes;
}

QString fromPage(const QByteArray& bytes, UINT page)
{
    if (bytes.isValidUtf8()) {
        return QString::fromUtf8(bytes);
    }
    std::wstring wide(std::size_t(bytes.size()), L'\0');
    wide.resize(
        std::size_t(::MultiByteToWideChar(page, 0, bytes.data(), int(bytes.size()), wide.data(), int(wide.size()))));
    return QString::fromStdWString(wide);
}

// Asked once for a run and all its jobs.
bool isNinjaUtf8()
{
    constexpr auto variable = "ORV_NINJA_PAGE";
    if (qEnvironmentVariableIsEmpty(variable)) {
        QProcess ninja;
        ninja.start(u"ninja"_s, {u"-t"_s, u"wincodepage"_s});
        ninja.waitForFinished();
        qputenv(variable, ninja.readAllStandardOutput().contains("UTF-8") ? "utf8" : "system");
    }
    return qgetenv(variable) == "utf8";
}

} // namespace

QByteArray ToolText::forNinja(const QString& text)
{
    return isNinjaUtf8() ? text.toUtf8() : forCppcheck(text);
}

QByteArray ToolText::forCppcheck(const QString& text)
{
    return inPage(text, systemsPage(LOCALE_IDEFAULTANSICODEPAGE));
}

QString ToolText::fromFile(const QByteArray& bytes)
{
    return fromPage(bytes, systemsPage(LOCALE_IDEFAULTANSICODEPAGE));
}

QString ToolText::fromChannel(const QByteArray& bytes)
{
    return fromPage(bytes, systemsPage(LOCALE_IDEFAULTCODEPAGE));
}

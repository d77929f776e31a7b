// SPDX-License-Identifier: MIT
#include "console/Console.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include <qt_windows.h>

#include <shellapi.h>

namespace {

bool leadsSomewhere(DWORD channel)
{
    const HANDLE handle = ::GetStdHandle(channel);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE && ::GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

void attach()
{
    const bool hasOutput = leadsSomewhere(STD_OUTPUT_HANDLE);
    const bool hasErrors = leadsSomewhere(STD_ERROR_HANDLE);
    if ((hasOutput && hasErrors) || !::AttachConsole(ATTACH_PARENT_PROCESS)) {
        return;
    }
    if (!hasOutput) {
        [[maybe_unused]] const auto* channel = std::freopen("CONOUT$", "w", stdout);
    }
    if (!hasErrors) {
        [[maybe_unused]] const auto* channel = std::freopen("CONOUT$", "w", stderr);
    }
}

UINT& previousCodePage()
{
    static UINT page = 0;
    return page;
}

void restoreCodePage()
{
    ::SetConsoleOutputCP(previousCodePage());
}

// The console is the user's, and goes on with the next program.
void speakUtf8()
{
    previousCodePage() = ::GetConsoleOutputCP();
    if (previousCodePage() != 0 && previousCodePage() != CP_UTF8 && ::SetConsoleOutputCP(CP_UTF8)) {
        std::atexit(restoreCodePage);
    }
}

// Qt would hand them to a debugger where there is no console.
void printMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    std::fprintf(stderr, "%s\n", qFormatLogMessage(type, context, text).toUtf8().constData());
    std::fflush(stderr);
    if (type == QtFatalMsg) {
        std::abort();
    }
}

} // namespace

void Console::open()
{
    attach();
    speakUtf8();
    qInstallMessageHandler(printMessage);
}

void Console::hearKeys()
{
    constexpr std::array channels = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
    std::array<HANDLE, channels.size()> places = {};
    std::ranges::transform(channels, places.begin(), ::GetStdHandle);
    if (!::AttachConsole(ATTACH_PARENT_PROCESS)) {
        return;
    }
    for (std::size_t i = 0; i < channels.size(); ++i) {
        ::SetStdHandle(channels[i], places[i]);
    }
}

QStringList Console::arguments(int, char**)
{
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    QStringList texts;
    for (int i = 0; words && i < count; ++i) {
        texts += QString::fromWCharArray(words[i]);
    }
    ::LocalFree(words);
    return texts;
}

int Console::columns()
{
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (!::GetConsoleMode(output, &mode) || !::GetConsoleScreenBufferInfo(output, &info) ||
        !::SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING)) {
        return 0;
    }
    return info.srWindow.Right - info.srWindow.Left + 1;
}

bool Console::hasErrorTerminal()
{
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

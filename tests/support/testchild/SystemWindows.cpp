// SPDX-License-Identifier: MIT
#include "System.h"

#include <cstdlib>
#include <fcntl.h>
#include <io.h>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shellapi.h>

namespace {

std::vector<HANDLE>& children()
{
    static std::vector<HANDLE> handles;
    return handles;
}

std::string narrow(const std::filesystem::path& text)
{
    const std::u8string bytes = text.u8string();
    return {bytes.begin(), bytes.end()};
}

// As CommandLineToArgvW() takes them apart.
std::wstring quoted(const std::string& argument)
{
    std::wstring result = L"\"";
    std::size_t slashes = 0;
    for (const wchar_t c : std::filesystem::path(std::u8string(argument.begin(), argument.end())).wstring()) {
        result.append(c == L'"' ? slashes + 1 : 0, L'\\');
        slashes = c == L'\\' ? slashes + 1 : 0;
        result += c;
    }
    return result.append(slashes, L'\\') + L'"';
}

[[noreturn]] void endWith(DWORD status)
{
    ::TerminateProcess(::GetCurrentProcess(), status);
    std::abort();
}

HANDLE startProcess(std::wstring line, DWORD flags)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = ::GetStdHandle(STD_OUTPUT_HANDLE);
    startup.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process = {};
    if (::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, flags, nullptr, nullptr, &startup, &process) ==
        0) {
        endWith(::GetLastError());
    }
    ::CloseHandle(process.hThread);
    return process.hProcess;
}

std::wstring joined(const Words& words)
{
    std::wstring line;
    for (const std::string& word : words) {
        line += (line.empty() ? L"" : L" ") + quoted(word);
    }
    return line;
}

} // namespace

Words System::commandLine(int, char**)
{
    for (const int channel : {0, 1, 2}) {
        ::_setmode(channel, _O_BINARY);
    }
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::wstring file(32768, L'\0');
    file.resize(::GetModuleFileNameW(nullptr, file.data(), DWORD(file.size())));
    const std::u8string self = std::filesystem::path(file).replace_extension().generic_u8string();
    Words all{{self.begin(), self.end()}};
    for (int i = 1; i < count; ++i) {
        all.push_back(narrow(words[i]));
    }
    ::LocalFree(words);
    return all;
}

std::string System::variable(const std::string& name)
{
    std::wstring value(32768, L'\0');
    value.resize(::GetEnvironmentVariableW(std::filesystem::path(name).c_str(), value.data(), DWORD(value.size())));
    return narrow(value);
}

long long System::processId()
{
    return ::GetCurrentProcessId();
}

void System::start(Place place, const Words& self, const std::string& verbs, const std::function<void()>&)
{
    Words words{self[0] + ".exe", "--verbs", verbs};
    words.insert(words.end(), self.begin() + 1, self.end());
    const DWORD flags = (place == Place::Group ? 0 : CREATE_NEW_PROCESS_GROUP) |
                        (place == Place::Group || place == Place::OwnGroup ? 0 : DETACHED_PROCESS);
    children().push_back(startProcess(joined(words), flags));
}

void System::waitForAll()
{
    for (const HANDLE child : children()) {
        ::WaitForSingleObject(child, INFINITE);
    }
}

void System::become(const Words& command)
{
    const HANDLE process = startProcess(joined(command), 0);
    ::WaitForSingleObject(process, INFINITE);
    DWORD status = 0;
    ::GetExitCodeProcess(process, &status);
    endWith(status);
}

void System::ignoreRequests()
{
    ::SetConsoleCtrlHandler([](DWORD) -> BOOL { return TRUE; }, TRUE);
}

void System::crash()
{
    endWith(0xC0000005);
}

void System::die()
{
    endWith(0xC000013A);
}

void System::closeOutput()
{
    ::_close(1);
    ::_close(2);
}

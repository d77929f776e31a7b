// SPDX-License-Identifier: MIT
// Starts the program that its own name stands for, hands on its arguments, waits and ends with its status:
// ProjectCreation.com starts the ProjectCreation.exe beside it, orvc.exe and the suite's other names the orvtool.exe of
// the bin folder. A console prefers .com to .exe, and waits for this one as it would not for a program with windows.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <array>
#include <cstdio>
#include <string>
#include <string_view>

namespace {

struct Target
{
    std::wstring program;
    std::wstring firstArgument;
    bool hasWindow = false;
};

std::wstring ownPath()
{
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), DWORD(path.size())));
    return path;
}

bool exists(const std::wstring& file)
{
    return ::GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES;
}

Target target()
{
    const std::wstring path = ownPath();
    const std::size_t nameAt = path.rfind(L'\\') + 1;
    const std::wstring folder = path.substr(0, nameAt);
    const std::wstring name = path.substr(nameAt, path.rfind(L'.') - nameAt);
    if (const std::wstring beside = folder + name + L".exe"; beside != path && path.ends_with(L".com")) {
        return {beside, {}, true};
    }
    // The analysers lie in bin folders of their own, beside the suite's.
    const std::wstring beside = folder + L"orvtool.exe";
    return {exists(beside) ? beside : folder + L"..\\..\\bin\\orvtool.exe", name == L"orv" ? L"" : L" " + name};
}

// What follows the program's own name, as it was typed: dividing and quoting it anew could change it.
std::wstring_view typedArguments()
{
    std::wstring_view line = ::GetCommandLineW();
    bool quoted = false;
    std::size_t at = 0;
    for (; at < line.size() && (quoted || (line[at] != L' ' && line[at] != L'\t')); ++at) {
        quoted ^= line[at] == L'"';
    }
    return line.substr(at);
}

bool asksForNoWindow(int count, wchar_t** arguments)
{
    constexpr std::array windowless = {L"-batch", L"-ver", L"-help", L"--help", L"-h", L"--version"};
    for (int i = 1; i < count; ++i) {
        for (const std::wstring_view option : windowless) {
            if (option == arguments[i]) {
                return true;
            }
        }
    }
    return false;
}

// The program hears of Ctrl+C as well and tidies up; this one only waits for it.
BOOL WINAPI leaveToTheProgram(DWORD)
{
    return TRUE;
}

// Whoever ends this one means the program.
HANDLE jobThatEndsWithUs()
{
    const HANDLE job = ::CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_SILENT_BREAKAWAY_OK;
    ::SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    const Target wanted = target();
    std::wstring line = L"\"" + wanted.program + L"\"" + wanted.firstArgument;
    line += typedArguments();
    STARTUPINFOW startup = {};
    ::GetStartupInfoW(&startup);
    startup.lpReserved = nullptr;
    startup.cbReserved2 = 0;
    startup.lpReserved2 = nullptr;
    startup.dwFlags |= STARTF_USESTDHANDLES;
    startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = ::GetStdHandle(STD_OUTPUT_HANDLE);
    startup.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process = {};
    ::SetConsoleCtrlHandler(leaveToTheProgram, TRUE);
    if (!::CreateProcessW(wanted.program.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr,
                          nullptr, &startup, &process)) {
        std::fwprintf(stderr, L"%ls can not be started (error %lu). Install the suite again.\n", wanted.program.c_str(),
                      ::GetLastError());
        return 2;
    }
    // A window goes on when its console is closed, and the console is free for the next command.
    const bool waits = !wanted.hasWindow || asksForNoWindow(count, arguments);
    const HANDLE job = waits ? jobThatEndsWithUs() : nullptr;
    if (job) {
        ::AssignProcessToJobObject(job, process.hProcess);
    }
    ::ResumeThread(process.hThread);
    DWORD status = 0;
    if (waits) {
        ::WaitForSingleObject(process.hProcess, INFINITE);
        ::GetExitCodeProcess(process.hProcess, &status);
    }
    return int(status);
}

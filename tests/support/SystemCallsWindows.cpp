// SPDX-License-Identifier: MIT
#include "SystemCalls.h"

#include <qt_windows.h>

namespace {

BOOL WINAPI ignore(DWORD)
{
    return TRUE;
}

} // namespace

OwnConsole::OwnConsole()
{
    ::FreeConsole();
    if (::AllocConsole() == 0 || ::SetConsoleCtrlHandler(ignore, TRUE) == 0) {
        qFatal("there is no console to be had");
    }
}

OwnConsole::~OwnConsole()
{
    ::SetConsoleCtrlHandler(ignore, FALSE);
    ::FreeConsole();
}

HeldFile::HeldFile(const QString& name)
    : handle(::CreateFileW(name.toStdWString().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr))
{
}

HeldFile::~HeldFile()
{
    ::CloseHandle(handle);
}

int geteuid()
{
    return 0;
}

int kill(pid_t process, int signal)
{
    if (signal == SIGINT) {
        return ::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) != 0 ? 0 : -1;
    }
    const HANDLE handle = ::OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, DWORD(process));
    const bool runs = handle != nullptr && ::WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
    const bool done = runs && (signal == 0 || ::TerminateProcess(handle, 1) != 0);
    ::CloseHandle(handle);
    return done ? 0 : -1;
}

int mkfifo(const char*, int)
{
    return -1;
}

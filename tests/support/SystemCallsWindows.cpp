// SPDX-License-Identifier: MIT
#include "SystemCalls.h"

#include <qt_windows.h>

int geteuid()
{
    return 0;
}

int kill(pid_t process, int signal)
{
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

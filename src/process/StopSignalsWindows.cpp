// SPDX-License-Identifier: MIT
#include "process/StopSignals.h"

#include <QMetaObject>
#include <QSocketNotifier>

#include <atomic>

#include <qt_windows.h>

namespace {

std::atomic<StopSignals*> listener = nullptr;

// Runs in a thread of the system's own.
BOOL WINAPI handle(DWORD event)
{
    StopSignals* const target = listener;
    if (!target) {
        return FALSE;
    }
    QMetaObject::invokeMethod(target, &StopSignals::received, Qt::QueuedConnection);
    if (event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT) {
        // The system ends the program once this returns: its own end, meanwhile, is the tidier one.
        ::Sleep(INFINITE);
    }
    return TRUE;
}

constexpr auto windowClass = L"KovraStopSignals";

// A program with windows hears of the session's end by them alone. What comes after this returns is up to the system,
// so that whoever listens has to be done by then.
LRESULT CALLBACK hear(HWND window, UINT message, WPARAM word, LPARAM more)
{
    StopSignals* const target = listener;
    if (message == WM_ENDSESSION && word != 0 && target) {
        Q_EMIT target->received();
        return 0;
    }
    return ::DefWindowProcW(window, message, word, more);
}

// Never shown; one for messages alone is told nothing of the session.
HWND makeWindow()
{
    WNDCLASSW kind = {};
    kind.lpfnWndProc = hear;
    kind.hInstance = ::GetModuleHandleW(nullptr);
    kind.lpszClassName = windowClass;
    ::RegisterClassW(&kind);
    return ::CreateWindowExW(0, windowClass, L"", WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr, kind.hInstance, nullptr);
}

HWND sessionWindow = nullptr;

} // namespace

StopSignals::StopSignals(QObject* parent)
    : QObject(parent)
{
    listener = this;
    ::SetConsoleCtrlHandler(handle, TRUE);
    sessionWindow = makeWindow();
}

StopSignals::~StopSignals()
{
    ::DestroyWindow(sessionWindow);
    ::SetConsoleCtrlHandler(handle, FALSE);
    listener = nullptr;
}

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

} // namespace

StopSignals::StopSignals(QObject* parent)
    : QObject(parent)
{
    listener = this;
    ::SetConsoleCtrlHandler(handle, TRUE);
}

StopSignals::~StopSignals()
{
    ::SetConsoleCtrlHandler(handle, FALSE);
    listener = nullptr;
}

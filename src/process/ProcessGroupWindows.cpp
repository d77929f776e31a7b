// SPDX-License-Identifier: MIT
#include "process/ProcessGroup.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <memory>
#include <vector>

struct ProcessGroup::Handle
{
    HANDLE job = nullptr;
    /// For the next start; the system reads both only then.
    STARTUPINFOEXW startup = {};
    std::vector<char> attributes;
};

ProcessGroup::ProcessGroup()
    : handle(std::make_unique<Handle>())
{
    handle->job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(handle->job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
}

ProcessGroup::~ProcessGroup()
{
    CloseHandle(handle->job);
}

void ProcessGroup::becomeLeader() {}

// Taken into the job when it runs already, the child could have started others outside.
void* ProcessGroup::startInside(const void* startup, unsigned long& flags)
{
    // Not in our console: a child that heard of Ctrl+C as well would seem to have ended by itself.
    flags |= CREATE_NO_WINDOW;
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    handle->attributes.resize(size);
    handle->startup = {};
    handle->startup.StartupInfo = *static_cast<const STARTUPINFOW*>(startup);
    handle->startup.StartupInfo.cb = sizeof(STARTUPINFOW);
    auto* list = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(handle->attributes.data());
    if (InitializeProcThreadAttributeList(list, 1, 0, &size) &&
        UpdateProcThreadAttribute(list, 0, PROC_THREAD_ATTRIBUTE_JOB_LIST, &handle->job, sizeof handle->job, nullptr,
                                  nullptr)) {
        handle->startup.StartupInfo.cb = sizeof handle->startup;
        handle->startup.lpAttributeList = list;
        flags |= EXTENDED_STARTUPINFO_PRESENT;
    }
    return &handle->startup;
}

void ProcessGroup::adopt(long long processId)
{
    const HANDLE process = OpenProcess(PROCESS_SET_QUOTA | PROCESS_TERMINATE, FALSE, static_cast<DWORD>(processId));
    if (process != nullptr) {
        AssignProcessToJobObject(handle->job, process);
        CloseHandle(process);
    }
}

// A job knows no polite request; QProcess::terminate() asks the windows of the leader.
void ProcessGroup::terminate() {}

void ProcessGroup::kill()
{
    TerminateJobObject(handle->job, 1);
}

// The job holds the leftovers until it is asked.
void ProcessGroup::release(bool killNow)
{
    if (killNow) {
        kill();
    }
}

bool ProcessGroup::hasLeftovers()
{
    JOBOBJECT_BASIC_ACCOUNTING_INFORMATION facts = {};
    return QueryInformationJobObject(handle->job, JobObjectBasicAccountingInformation, &facts, sizeof facts, nullptr) &&
           facts.ActiveProcesses > 0;
}

void ProcessGroup::endLeftovers()
{
    kill();
}

// SPDX-License-Identifier: MIT
#include "PrivateStores.h"

#include <QDir>

#include <string>

#include <qt_windows.h>

namespace {

std::wstring keyOfRun()
{
    return L"Software\\KOVRA-tests-" + std::to_wstring(::GetCurrentProcessId());
}

// What can not be redirected would be somebody's own.
void redirect(HKEY hive, const wchar_t* name)
{
    HKEY key = nullptr;
    if (::RegCreateKeyExW(HKEY_CURRENT_USER, (keyOfRun() + name).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                          nullptr) != ERROR_SUCCESS ||
        ::RegOverridePredefKey(hive, key) != ERROR_SUCCESS) {
        qFatal("the registry can not be redirected");
    }
    ::RegCloseKey(key);
}

} // namespace

PrivateStores::PrivateStores(const QString& home)
{
    redirect(HKEY_LOCAL_MACHINE, L"\\machine");
    redirect(HKEY_CLASSES_ROOT, L"\\classes");
    redirect(HKEY_CURRENT_USER, L"\\user");
    for (const char* variable : {"TEMP", "TMP"}) {
        qputenv(variable, QDir::toNativeSeparators(home + QStringLiteral("/tmp")).toLocal8Bit());
    }
    qputenv("USERPROFILE", QDir::toNativeSeparators(home + QStringLiteral("/home")).toLocal8Bit());
}

PrivateStores::~PrivateStores()
{
    ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    ::RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
    ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, keyOfRun().c_str());
}

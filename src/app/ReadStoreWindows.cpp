// SPDX-License-Identifier: MIT
#include "app/ReadStore.h"

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

const wchar_t* wide(const QString& text)
{
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

bool isThere(const QString& key)
{
    HKEY handle = nullptr;
    const bool found = ::RegOpenKeyExW(HKEY_CURRENT_USER, wide(key), 0, KEY_READ, &handle) == ERROR_SUCCESS;
    if (found) {
        ::RegCloseKey(handle);
    }
    return found;
}

bool isEmpty(const QString& key)
{
    HKEY handle = nullptr;
    DWORD keys = 1;
    DWORD values = 1;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, wide(key), 0, KEY_READ, &handle) == ERROR_SUCCESS) {
        ::RegQueryInfoKeyW(handle, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                           nullptr, nullptr);
        ::RegCloseKey(handle);
    }
    return keys == 0 && values == 0;
}

QStringList missingKeys(QSettings::Format format, const QString& organisation, const QString& application)
{
    QStringList keys;
    if (format == QSettings::NativeFormat) {
        const QString outer = u"Software\\"_s + organisation;
        keys = {outer + u'\\' + application, outer};
        keys.removeIf(isThere);
    }
    return keys;
}

} // namespace

ReadStore::ReadStore(Format format, Scope scope, const QString& organisation, const QString& application)
    : ReadStore(missingKeys(format, organisation, application), format, scope, organisation, application)
{
}

ReadStore::ReadStore(const QStringList& missingKeys, Format format, Scope scope, const QString& organisation,
                     const QString& application)
    : QSettings(format, scope, organisation, application)
    , missing(missingKeys)
{
}

ReadStore::~ReadStore()
{
    for (const QString& key : missing) {
        if (isEmpty(key)) {
            ::RegDeleteKeyW(HKEY_CURRENT_USER, wide(key));
        }
    }
}

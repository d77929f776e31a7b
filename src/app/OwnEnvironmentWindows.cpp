// SPDX-License-Identifier: MIT
#include "app/OwnEnvironment.h"

#include <cstdlib>
#include <string>

#include <qt_windows.h>

namespace {

// Calls take(name, value) for what differs. Windows' own entries of a drive's folder begin with "=".
template <typename Take>
void eachChange(const QStringList& environment, const QStringList& before, Take take)
{
    for (const QString& entry : environment) {
        const qsizetype separator = entry.indexOf(u'=');
        if (separator > 0 && !before.contains(entry)) {
            take(entry.first(separator), entry.sliced(separator + 1));
        }
    }
}

} // namespace

void OwnEnvironment::set(const QStringList& environment, const QStringList& before)
{
    eachChange(environment, before, [](const QString& name, const QString& value) {
        const std::wstring wideName = name.toStdWString();
        const std::wstring wideValue = value.toStdWString();
        // For the runtime's own readers, then for children: the runtime may have gone through a code page.
        ::_wputenv_s(wideName.c_str(), wideValue.c_str());
        ::SetEnvironmentVariableW(wideName.c_str(), wideValue.c_str());
    });
}

QProcessEnvironment OwnEnvironment::forChild(const QStringList& environment, const QStringList& before)
{
    // Names are the same in any letter case here, for QProcessEnvironment too.
    QProcessEnvironment inherited = QProcessEnvironment::systemEnvironment();
    eachChange(environment, before,
               [&inherited](const QString& name, const QString& value) { inherited.insert(name, value); });
    return inherited;
}

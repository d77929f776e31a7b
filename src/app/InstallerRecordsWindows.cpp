// SPDX-License-Identifier: MIT
#include "app/InstallerRecords.h"
#include "app/SettingsStore.h"

#include <QSettings>

using namespace Qt::StringLiterals;

QString InstallerRecords::otherView(const QString& product)
{
    const auto format = sizeof(void*) == 8 ? QSettings::Registry32Format : QSettings::Registry64Format;
    for (const QString& hive : {u"HKEY_CURRENT_USER"_s, u"HKEY_LOCAL_MACHINE"_s}) {
        const QSettings store(hive + u"\\Software\\"_s + SettingsStore::organisation() + u'\\' + product, format);
        QStringList versions = store.childGroups();
        versions.sort();
        const QString path = versions.isEmpty() ? QString() : store.value(versions.last() + u"/Path"_s).toString();
        if (!path.isEmpty()) {
            return path;
        }
    }
    return {};
}

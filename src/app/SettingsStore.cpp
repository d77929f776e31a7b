// SPDX-License-Identifier: MIT
#include "app/SettingsStore.h"
#include "app/ReadStore.h"

using namespace Qt::StringLiterals;

namespace {

QSettings::Format& format()
{
    static QSettings::Format chosen = QSettings::NativeFormat;
    return chosen;
}

} // namespace

namespace SettingsStore {

void keepIn(const QString& folder)
{
    format() = QSettings::IniFormat;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, folder);
}

QString organisation()
{
    return u"KOVRA"_s;
}

std::unique_ptr<QSettings> openForReading(const QString& application)
{
    // A user-scope store falls back to the system's value by itself.
    return std::make_unique<ReadStore>(format(), QSettings::UserScope, organisation(), application);
}

bool write(const QString& application, const std::function<void(QSettings&)>& write)
{
    QSettings system(format(), QSettings::SystemScope, organisation(), application);
    if (system.isWritable()) {
        write(system);
        system.sync();
        if (system.status() == QSettings::NoError) {
            QSettings user(format(), QSettings::UserScope, organisation(), application);
            user.setFallbacksEnabled(false);
            const QStringList hidden = user.fileName() == system.fileName() ? QStringList() : user.allKeys();
            for (const QString& key : hidden) {
                if (system.contains(key)) {
                    user.remove(key);
                }
            }
            return true;
        }
    }
    QSettings user(format(), QSettings::UserScope, organisation(), application);
    if (!user.isWritable()) {
        return false;
    }
    write(user);
    user.sync();
    return user.status() == QSettings::NoError;
}

QStringList childGroups(const QString& application)
{
    QStringList groups = openForReading(application)->childGroups();
    groups.removeDuplicates();
    return groups;
}

} // namespace SettingsStore

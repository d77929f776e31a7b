// SPDX-License-Identifier: MIT
#include "app/Installations.h"
#include "app/SettingsStore.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Installations {

Folders FindInstallations()
{
    return {FindInstallation(u"Orv C Source Code Analyser"_s, u"ORVCPATH"_s),
            FindInstallation(u"Orv C++ Source Code Analyser"_s, u"ORVCPPPATH"_s)};
}

QString FindInstallation(const QString& product, const QString& variable)
{
    QStringList versions = SettingsStore::childGroups(product);
    if (!versions.isEmpty()) {
        versions.sort();
        QString path = SettingsStore::openForReading(product)->value(versions.last() + u"/Path"_s).toString();
        if (!path.isEmpty() && QFile::exists(path)) {
            return path;
        }
    }
    return EnvironmentValue(variable, false);
}

} // namespace Installations

QString EnvironmentValue(const QString& name, bool orCurrentFolder, const QStringList& environment)
{
    const QString prefix = (name.startsWith(u'$') ? name.sliced(1) : name) + u'=';
    const auto entry = std::ranges::find_if(
        environment, [&](const QString& text) { return text.startsWith(prefix, Qt::CaseInsensitive); });
    QString value = entry == environment.end() ? QString() : entry->section(u'=', 1, 1);
    if (orCurrentFolder && !QFile::exists(value)) {
        value = QDir::currentPath();
    }
    return value;
}

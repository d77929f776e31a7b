// SPDX-License-Identifier: MIT
#include "app/Installations.h"
#include "app/InstallerRecords.h"
#include "app/SettingsStore.h"
#include "definitions/EnvironmentValue.h"

#include <QFile>

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
    if (QString path = InstallerRecords::otherView(product); !path.isEmpty() && QFile::exists(path)) {
        return path;
    }
    return EnvironmentValue(variable, false);
}

} // namespace Installations

// SPDX-License-Identifier: MIT
#include "wizard/FolderMemory.h"
#include "app/AppRegistry.h"

#include <QFileInfo>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

FolderMemory::FolderMemory(const QString& field)
    : key(u"Folders/"_s + QString::fromLatin1(QUrl::toPercentEncoding(field)))
{
    connect(appRegistry, &AppRegistry::WriteRegistryValues, this, &FolderMemory::store);
}

QString FolderMemory::last() const
{
    const QSettings* settings = appRegistry->settings.get();
    const QString folder = chosen.isEmpty() && settings ? settings->value(key).toString() : chosen;
    return QFileInfo(folder).isDir() ? folder : QString();
}

void FolderMemory::store(QSettings* settings) const
{
    if (!chosen.isEmpty()) {
        settings->setValue(key, chosen);
    }
}

// SPDX-License-Identifier: MIT
#include "app/PortableMode.h"
#include "app/SettingsStore.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void PortableMode::enter()
{
    QString folder = qEnvironmentVariable("KOVRA_SETTINGS");
#ifdef Q_OS_WIN
    if (folder.isEmpty()) {
        folder = QFileInfo(QCoreApplication::applicationDirPath()).absolutePath() + u"/settings"_s;
    }
#endif
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) {
        SettingsStore::keepIn(folder);
    }
}

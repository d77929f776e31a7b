// SPDX-License-Identifier: MIT
#include "project/ProjectTarget.h"

#include <QDir>
#include <QFile>

bool ProjectTarget::createFolder(const QString& folder)
{
    return QDir().mkpath(folder);
}

bool ProjectTarget::isWritable(const QString& file)
{
    QFile probe(file);
    const bool existed = probe.exists();
    if (!probe.open(QIODevice::ReadWrite)) {
        return false;
    }
    probe.close();
    if (!existed) {
        probe.remove();
    }
    return true;
}

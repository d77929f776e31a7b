// SPDX-License-Identifier: MIT
#include "project/ProjectTarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

bool ProjectTarget::createFolder(const QString& folder)
{
    return QDir().mkpath(folder);
}

bool ProjectTarget::isWritable(const QString& file)
{
    // Of a link that points nowhere yet, its target is made and removed again, not the link.
    const QFileInfo info(file);
    QFile probe(info.isSymLink() ? info.symLinkTarget() : file);
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

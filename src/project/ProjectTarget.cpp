// SPDX-License-Identifier: MIT
#include "project/ProjectTarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// As many as the system follows.
constexpr int mostLinks = 40;

} // namespace

bool ProjectTarget::createFolder(const QString& folder)
{
    return QDir().mkpath(folder);
}

bool ProjectTarget::isWritable(const QString& file)
{
    // Of a link that points nowhere yet, its target is made and removed again, not the link.
    QString target = file;
    for (int links = 0; links < mostLinks && QFileInfo(target).isSymLink(); ++links) {
        target = QFileInfo(target).symLinkTarget();
    }
    QFile probe(target);
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

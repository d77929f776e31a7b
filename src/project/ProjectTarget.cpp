// SPDX-License-Identifier: MIT
#include "project/ProjectTarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

bool ProjectTarget::createFolder(const QString& folder)
{
    return QDir().mkpath(folder);
}

bool ProjectTarget::isWritable(const QString& file)
{
    const QFileInfo info(file);
    // The file that a link leads to is not touched: the new project takes the link's place.
    if (info.exists() && !info.isSymLink()) {
        return info.isFile() && QFile(file).open(QIODevice::ReadWrite);
    }
    // A file of another name, which nobody else can have made or take for a project.
    QTemporaryFile probe(info.absolutePath() + u"/.kovra-XXXXXX"_s);
    return probe.open();
}

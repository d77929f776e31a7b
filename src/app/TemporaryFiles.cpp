// SPDX-License-Identifier: MIT
#include "app/TemporaryFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <utility>

using namespace Qt::StringLiterals;

TemporaryFiles::~TemporaryFiles()
{
    removeAll();
}

QString TemporaryFiles::create(const QString& suffix)
{
    QString fileTemplate = QDir::tempPath() + "/KOVRA-XXXXXX"_L1;
    if (!suffix.isEmpty()) {
        fileTemplate += suffix.startsWith(u'.') ? suffix : u'.' + suffix;
    }
    // Kept by name: an object for each would hold a file descriptor until the end.
    QTemporaryFile file(fileTemplate);
    file.setAutoRemove(false);
    if (!file.open()) {
        return {};
    }
    fileNames += file.fileName();
    return file.fileName();
}

void TemporaryFiles::removeAll()
{
    for (const QString& name : std::as_const(fileNames)) {
        QFile::remove(name);
    }
    fileNames.clear();
}

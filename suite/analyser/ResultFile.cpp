// SPDX-License-Identifier: MIT
#include "ResultFile.h"
#include "Failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

QByteArray ResultFile::read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ResultFile::write(const QString& path, const QByteArray& contents)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    // A full disk shows in the flush; committing it would answer true.
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size() || !file.flush()) {
        throw Failure{
            u"%1 can not be written: %2. Make room or make its folder writable."_s.arg(path, file.errorString())};
    }
    if (!file.commit()) {
        throw Failure{u"%1 can not be replaced: %2."_s.arg(path, file.errorString())};
    }
}

void ResultFile::writeScratch(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size() || !file.flush()) {
        throw Failure{
            u"%1 can not be written: %2. Make room or make its folder writable."_s.arg(path, file.errorString())};
    }
}

void ResultFile::writeChanged(const QString& path, const QByteArray& contents)
{
    if (!QFile::exists(path) || read(path) != contents) {
        write(path, contents);
    }
}

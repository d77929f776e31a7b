// SPDX-License-Identifier: MIT
#include "ResultFile.h"
#include "Failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

// The system takes what still fits on a full disk, and calls that no error.
void writeAll(QFileDevice& file, const QString& path, const QByteArray& contents)
{
    if (file.isOpen() && file.write(contents) == contents.size() && file.flush()) {
        return;
    }
    const QString reason =
        file.error() == QFileDevice::NoError ? u"there is no room for all of it"_s : file.errorString();
    throw Failure{u"%1 can not be written: %2. Make room or make its folder writable."_s.arg(path, reason)};
}

} // namespace

QByteArray ResultFile::read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ResultFile::write(const QString& path, const QByteArray& contents)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    file.open(QIODevice::WriteOnly);
    // A full disk shows here; committing the file would answer true.
    writeAll(file, path, contents);
    if (!file.commit()) {
        throw Failure{u"%1 can not be replaced: %2."_s.arg(path, file.errorString())};
    }
}

void ResultFile::writeScratch(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    writeAll(file, path, contents);
}

void ResultFile::writeChanged(const QString& path, const QByteArray& contents)
{
    if (!QFile::exists(path) || read(path) != contents) {
        write(path, contents);
    }
}

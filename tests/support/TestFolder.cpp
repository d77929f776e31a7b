// SPDX-License-Identifier: MIT
#include "TestFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString TestFolder::write(const QString& name, const QByteArray& contents, const QDateTime& time) const
{
    const QString target = path(name);
    QDir().mkpath(QFileInfo(target).absolutePath());
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size() ||
        (time.isValid() && !(file.flush() && file.setFileTime(time, QFile::FileModificationTime)))) {
        qFatal("cannot write %s", qPrintable(target));
    }
    return target;
}

QString TestFolder::writeScript(const QString& name, const QByteArray& body) const
{
    const QString script = write(name, "#!/bin/sh\n" + body);
    QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return script;
}

void TestFolder::placeProgram(const QString& program, const QString& name) const
{
#ifdef Q_OS_WIN
    QFile::copy(program, path(name + u".exe"_s));
#else
    QFile::link(program, path(name));
#endif
}

QByteArray TestFolder::read(const QString& name) const
{
    QFile file(QDir::isAbsolutePath(name) ? name : path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool TestFolder::isAlive(const QByteArray& pid)
{
    QFile status(u"/proc/"_s + QString::fromLatin1(pid.trimmed()) + u"/stat"_s);
    return !pid.trimmed().isEmpty() && status.open(QIODevice::ReadOnly) && !status.readAll().contains(") Z ");
}

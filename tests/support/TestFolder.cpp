// SPDX-License-Identifier: MIT
#include "TestFolder.h"
#include "SystemCalls.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

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

QString TestFolder::writeChild(const QString& name, const QByteArray& verbs) const
{
    QFile::remove(path(name));
    if (verbs.startsWith("#!")) {
        const QString script = write(name, "#!/bin/sh\n" + verbs.mid(2));
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return script;
    }
    write(name + u".verbs"_s, verbs);
    return placeProgram(QStringLiteral(TESTCHILD), name);
}

QString TestFolder::placeProgram(const QString& program, const QString& name) const
{
#ifdef Q_OS_WIN
    QString place = path(name + u".exe"_s);
    std::error_code rare;
    std::filesystem::create_hard_link(QFileInfo(program).filesystemAbsoluteFilePath(),
                                      QFileInfo(place).filesystemAbsoluteFilePath(), rare);
    QFile::copy(program, place);
#else
    QString place = path(name);
    QFile::link(program, place);
#endif
    return place;
}

QByteArray TestFolder::read(const QString& name) const
{
    QFile file(QDir::isAbsolutePath(name) ? name : path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool TestFolder::isAlive(const QByteArray& pid)
{
#ifdef Q_OS_WIN
    return pid.trimmed().toInt() != 0 && ::kill(pid_t(pid.trimmed().toInt()), 0) == 0;
#else
    QFile status(u"/proc/"_s + QString::fromLatin1(pid.trimmed()) + u"/stat"_s);
    return !pid.trimmed().isEmpty() && status.open(QIODevice::ReadOnly) && !status.readAll().contains(") Z ");
#endif
}

QByteArrayList TestFolder::running(const QString& file) const
{
    QByteArrayList alive = read(file).split('\n');
    alive.removeIf([](const QByteArray& pid) { return !isAlive(pid); });
    return alive;
}

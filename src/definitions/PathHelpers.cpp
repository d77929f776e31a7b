// SPDX-License-Identifier: MIT
#include "definitions/PathHelpers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString ToForwardSlashes(QString text)
{
    return text.replace(u'\\', u'/');
}

QString JoinPath(const QString& a, const QString& b)
{
    return a.isEmpty() ? b : QDir::cleanPath(a + u'/' + b);
}

QString AbsoluteJoin(const QString& directory, const QString& name)
{
    return QDir::cleanPath(QDir(directory).absoluteFilePath(name));
}

QString QuotedNativePath(const QString& path)
{
    return u'"' + QDir::toNativeSeparators(path) + u'"';
}

QString LocateFile(const QString& path, const QString& xmlArea)
{
    if (QFile::exists(path)) {
        return path;
    }
    const QString fileName = QFileInfo(path).fileName();
    for (const QString& folder : {xmlArea, QDir::homePath(), QDir::currentPath()}) {
        QString candidate = AbsoluteJoin(folder, fileName);
        if (!fileName.isEmpty() && QFile::exists(candidate)) {
            return candidate;
        }
    }
    return path;
}

// SPDX-License-Identifier: MIT
#include "Paths.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

bool isLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

bool startsWithDrive(QStringView path)
{
    return path.size() >= 2 && path[1] == u':' && isLetter(path[0]);
}

bool isSeparator(QChar character)
{
    return character == u'/' || character == u'\\';
}

bool needsCleaning(QStringView path)
{
    for (qsizetype i = 0; i + 1 < path.size(); ++i) {
        if (path[i] == u'/' && (path[i + 1] == u'/' || path[i + 1] == u'.')) {
            return true;
        }
    }
    return path.endsWith(u'/');
}

QString cleaned(const QString& path)
{
    if (path.startsWith("//"_L1)) {
        return u'/' + QDir::cleanPath(path.sliced(1));
    }
    // No ".." leaves a drive.
    return startsWithDrive(path) ? path.first(2) + QDir::cleanPath(path.sliced(2)) : QDir::cleanPath(path);
}

QString windowsAbsolute(const QString& folder, QString path)
{
    path.replace(u'\\', u'/');
    if (startsWithDrive(path) && (path.size() == 2 || path[2] != u'/')) {
        // Relative to the current folder of a drive: the command's own.
        path = path.sliced(2);
    }
    if (!Paths::isWindows(path)) {
        const bool fromRoot = path.startsWith(u'/');
        path = (fromRoot && startsWithDrive(folder) ? folder.first(2) : fromRoot ? QString() : folder + u'/') + path;
    }
    path = cleaned(path);
    if (startsWithDrive(path)) {
        path[0] = path[0].toUpper();
        return path.size() == 2 ? path + u'/' : path;
    }
    return path;
}

} // namespace

bool Paths::isWindows(QStringView path)
{
    if (path.size() >= 2 && isSeparator(path[0]) && path[0] == path[1]) {
        return true;
    }
    return path.size() >= 3 && startsWithDrive(path) && isSeparator(path[2]);
}

QString Paths::absolute(const QString& folder, const QString& path, bool windows)
{
#ifdef Q_OS_WIN
    // Also in the command of a compiler that might be another system's, a drive is one here.
    windows = windows || isWindows(path);
#endif
    if (windows) {
        return windowsAbsolute(folder, path);
    }
    // A leading colon is a name like any other here, not one of Qt's own resources.
    const QString joined = path.startsWith(u'/') ? path : folder + u'/' + path;
    QString clean = needsCleaning(joined) ? QDir::cleanPath(joined) : joined;
    // Two slashes at the beginning name a network only on Windows.
    while (clean.startsWith("//"_L1)) {
        clean.remove(0, 1);
    }
    return clean;
}

QString Paths::folderOf(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash == 2 && startsWithDrive(path)) {
        return path.first(3);
    }
    return slash > 0 ? path.first(slash) : u"/"_s;
}

QStringView Paths::nameOf(QStringView path)
{
    qsizetype begin = path.size();
    while (begin > 0 && !isSeparator(path[begin - 1])) {
        --begin;
    }
    return path.sliced(begin);
}

bool Paths::isBelow(QStringView path, QStringView folder)
{
    const Qt::CaseSensitivity cases = isWindows(folder) ? Qt::CaseInsensitive : Qt::CaseSensitive;
    return path.startsWith(folder, cases) &&
           (path.size() == folder.size() || folder.endsWith(u'/') || path[folder.size()] == u'/');
}

QString Paths::key(const QString& path)
{
    return isWindows(path) ? path.toLower() : path;
}

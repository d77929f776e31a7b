// SPDX-License-Identifier: MIT
#include "PathFinder.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

bool hasDrive(const QString& path)
{
    return path.size() > 1 && path[1] == u':' && path[0].isLetter();
}

} // namespace

QString PathFinder::find(const QString& folder, const QString& name)
{
    QString& path = known[{folder, name}];
    if (path.isEmpty()) {
        path = look(folder, name);
    }
    return path;
}

QString PathFinder::look(const QString& folder, const QString& name)
{
    QString path = name.trimmed();
    path.replace(u'\\', u'/');
    const bool isAbsolute = path.startsWith(u'/') || hasDrive(path);
    path = QDir::cleanPath(isAbsolute ? path : folder + u'/' + path);
    QStringList missing;
    while (!QFileInfo::exists(path)) {
        const qsizetype slash = path.lastIndexOf(u'/');
        if (slash < 0) {
            break;
        }
        missing.prepend(path.sliced(slash + 1));
        path.truncate(slash);
    }
    while (!missing.isEmpty()) {
        const QString part = missing.takeFirst();
        path += u'/' + inFolder(path, part);
    }
    return path;
}

QString PathFinder::inFolder(const QString& folder, const QString& name)
{
    // What hangs on a missing folder is not looked for.
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
        return name;
    }
    auto listing = listings.find(folder);
    if (listing == listings.end()) {
        listing = listings.insert(folder, {});
        const QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        for (const QString& entry : names) {
            listing->insert(entry.toLower(), entry);
        }
    }
    return listing->value(name.toLower(), name);
}

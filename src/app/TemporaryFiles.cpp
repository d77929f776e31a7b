// SPDX-License-Identifier: MIT
#include "app/TemporaryFiles.h"
#include "process/Guardian.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <utility>

#ifdef Q_OS_UNIX
#include <sys/file.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr auto listSuffix = ".owned"_L1;
constexpr qint64 longestList = 1024LL * 1024;

// Held until the process ends, however it ends. On Windows an open file can not be removed, which is as good.
bool lock([[maybe_unused]] const QFile& file)
{
#ifdef Q_OS_UNIX
    return ::flock(file.handle(), LOCK_EX | LOCK_NB) == 0;
#else
    return true;
#endif
}

bool isOurs([[maybe_unused]] const QFileInfo& file)
{
#ifdef Q_OS_UNIX
    return file.ownerId() == ::geteuid();
#else
    return true;
#endif
}

} // namespace

TemporaryFiles::TemporaryFiles() = default;

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
    enlist(file.fileName());
    return file.fileName();
}

// For the helper that cleans up when this run is killed, and for the next run if that is killed as well.
void TemporaryFiles::enlist(const QString& name)
{
    if (!list) {
        list = std::make_unique<QTemporaryFile>(QDir::tempPath() + "/KOVRA-XXXXXX"_L1 + listSuffix);
        // It has no name before it is asked for it.
        if (!list->open() || list->fileName().isEmpty() || !lock(*list)) {
            return;
        }
        Guardian::listsTemporaryFiles(list->fileName());
    }
    if (list->isOpen()) {
        list->write(QFile::encodeName(name) + '\n');
        list->flush();
    }
}

void TemporaryFiles::removeStale()
{
    const QDir folder(QDir::tempPath());
    QDirIterator entries(folder.path(), QDir::Files | QDir::NoSymLinks);
    while (entries.hasNext()) {
        entries.next();
        // A name filter would be a regular expression, which takes longer to build than all this.
        if (!entries.fileName().startsWith("KOVRA-"_L1) || !entries.fileName().endsWith(listSuffix)) {
            continue;
        }
        const QFileInfo info = entries.fileInfo();
        QFile stale(info.filePath());
        // A list that its owner still has is locked.
        if (!isOurs(info) || !stale.open(QIODevice::ReadWrite) || !lock(stale)) {
            continue;
        }
        const QList<QByteArray> names = stale.read(longestList).split('\n');
        stale.close();
        if (!stale.remove()) {
            continue;
        }
        for (const QByteArray& name : names) {
            const QFileInfo file(QFile::decodeName(name));
            if (file.dir() == folder && file.fileName().startsWith("KOVRA-"_L1)) {
                QFile::remove(file.filePath());
            }
        }
    }
}

void TemporaryFiles::removeAll()
{
    for (const QString& name : std::as_const(fileNames)) {
        QFile::remove(name);
    }
    fileNames.clear();
    list.reset();
}

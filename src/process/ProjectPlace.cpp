// SPDX-License-Identifier: MIT
#include "process/ProjectPlace.h"
#include "process/Guardian.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>

#include <filesystem>
#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(ProjectPlace)
};

constexpr int hashLength = 16;

bool isThere(const QString& file)
{
    const QFileInfo info(file);
    return info.isSymLink() || info.exists();
}

// Beside the project file, of a name that no length of its own name makes too long.
QString hidden(const QString& projectFile, const QString& suffix)
{
    const QFileInfo info(projectFile);
    const QByteArray name = info.fileName().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex().first(hashLength);
    return info.absolutePath() + u"/.kovra-"_s + QString::fromLatin1(hash) + suffix;
}

// QFile::rename() copies where it can not rename, and does not replace.
std::error_code move(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemAbsoluteFilePath(), QFileInfo(to).filesystemAbsoluteFilePath(),
                            error);
    return error;
}

QString reason(const std::error_code& error)
{
    return QString::fromLocal8Bit(error.message());
}

} // namespace

ProjectPlace::ProjectPlace() = default;

ProjectPlace::~ProjectPlace()
{
    bringBack();
}

Result<void> ProjectPlace::clear(const QString& file)
{
    projectFile = QFileInfo(file).absoluteFilePath();
    aside = hidden(projectFile, u".old"_s);
    if (const QFileInfo info(projectFile); info.isDir() && !info.isSymLink()) {
        return {Text::tr("A folder stands where the project file is to be: %1. Rename it or choose another name.")
                    .arg(QDir::toNativeSeparators(projectFile))};
    }
    Result<void> result = lock();
    if (result.ok()) {
        result = putAside();
    }
    if (result.ok()) {
        Guardian::watch(projectFile, hasOld ? aside : QString(), lockFile->fileName());
    } else {
        lockFile.reset();
    }
    return result;
}

Result<void> ProjectPlace::lock()
{
    lockFile = std::make_unique<QLockFile>(hidden(projectFile, u".lock"_s));
    lockFile->setStaleLockTime(0);
    if (lockFile->tryLock()) {
        return {};
    }
    const QString name = QDir::toNativeSeparators(lockFile->fileName());
    qint64 process = 0;
    QString host;
    QString program;
    if (lockFile->error() == QLockFile::LockFailedError && lockFile->getLockInfo(&process, &host, &program)) {
        return {Text::tr("Another conversion is making this project file (process %1 on %2). Wait for its end; if it "
                         "is gone, remove %3.")
                    .arg(process)
                    .arg(host, name)};
    }
    if (lockFile->error() == QLockFile::LockFailedError) {
        return {Text::tr("Another conversion is making this project file. Wait for its end; if it is gone, remove %1.")
                    .arg(name)};
    }
    return {Text::tr("The project file's folder can not be written: %1 can not be made there. Make room there or make "
                     "it writable.")
                .arg(name)};
}

Result<void> ProjectPlace::putAside()
{
    // Left by a run that was killed: it holds the last project that was whole.
    hasOld = isThere(aside);
    if (hasOld) {
        removeMade();
    } else if (isThere(projectFile)) {
        if (const std::error_code error = move(projectFile, aside)) {
            return {Text::tr("The old project file %1 can not be put aside: %2. Close programs that use it.")
                        .arg(QDir::toNativeSeparators(projectFile), reason(error))};
        }
        hasOld = true;
    }
    if (hasOld && QFileInfo(aside).isFile() && !QFileInfo(aside).isSymLink()) {
        old.setFileName(aside);
        [[maybe_unused]] const bool isReadable = old.open(QIODevice::ReadOnly);
    }
    return {};
}

bool ProjectPlace::hasProject(QString& problem) const
{
    const QFileInfo info(projectFile);
    problem.clear();
    if (info.isFile() && !info.isSymLink()) {
        return true;
    }
    if (isThere(projectFile)) {
        const QString what = info.isSymLink() ? Text::tr("a link to %1").arg(info.symLinkTarget())
                             : info.isDir()   ? Text::tr("a folder")
                                              : Text::tr("no regular file");
        problem = Text::tr("What the conversion program made there is no project file but %1.").arg(what);
    }
    return false;
}

void ProjectPlace::accept()
{
    if (std::exchange(hasOld, false)) {
        old.close();
        QFile::remove(aside);
    }
    release();
}

QString ProjectPlace::acceptKeepingOld()
{
    QString kept;
    if (std::exchange(hasOld, false)) {
        old.close();
        kept = projectFile + u".old"_s;
        for (int number = 2; isThere(kept); ++number) {
            kept = projectFile + u".old"_s + QString::number(number);
        }
        kept = move(aside, kept) ? aside : kept;
    }
    release();
    return QDir::toNativeSeparators(kept);
}

Result<bool> ProjectPlace::bringBack()
{
    if (!lockFile) {
        return {};
    }
    removeMade();
    Result<bool> result;
    if (std::exchange(hasOld, false)) {
        result = isThere(aside) ? rename() : rewrite();
    }
    old.close();
    release();
    return result;
}

// The place was empty before, so whatever is there is the conversion program's.
void ProjectPlace::removeMade() const
{
    const QFileInfo info(projectFile);
    if (info.isDir() && !info.isSymLink()) {
        QDir(projectFile).removeRecursively();
    } else {
        QFile::remove(projectFile);
    }
}

Result<bool> ProjectPlace::rename()
{
    old.close();
    const std::error_code error = move(aside, projectFile);
    return {!error, error ? Text::tr("The old project file could not be brought back (%1). It is kept as %2.")
                                .arg(reason(error), QDir::toNativeSeparators(aside))
                          : QString()};
}

// Somebody removed the file, or its folder, but we still hold its contents.
Result<bool> ProjectPlace::rewrite()
{
    Result<bool> lost = {
        false, Text::tr("The old project file is lost: the conversion program removed it from where it waited.")};
    if (!old.isOpen() || !QDir().mkpath(QFileInfo(projectFile).absolutePath())) {
        return lost;
    }
    const QDateTime time = old.fileTime(QFile::FileModificationTime);
    QSaveFile copy(projectFile);
    if (!copy.open(QIODevice::WriteOnly) || !old.seek(0)) {
        return lost;
    }
    copy.setPermissions(old.permissions());
    const QByteArray contents = old.readAll();
    if (copy.write(contents) != contents.size() || !copy.flush() ||
        !copy.setFileTime(time, QFile::FileModificationTime) || !copy.commit()) {
        return lost;
    }
    return {true};
}

void ProjectPlace::release()
{
    Guardian::forget();
    lockFile.reset();
}

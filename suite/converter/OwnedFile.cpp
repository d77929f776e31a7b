// SPDX-License-Identifier: MIT
#include "OwnedFile.h"
#include "Failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView head("* Include folders and defines of the converted build; written by prjconv\n");
constexpr QByteArrayView
    mark("* What stands below this line is yours: it is kept when the project is converted again.\n");

QByteArray read(const QString& path)
{
    QFile file(path);
    // With Windows' line ends the user's part is still the user's.
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
}

} // namespace

bool OwnedFile::isOurs(const QString& path)
{
    return read(path).startsWith(head);
}

QByteArray OwnedFile::userPart(const QString& path)
{
    const QByteArray text = read(path);
    const qsizetype at = text.indexOf(mark);
    return text.startsWith(head) && at >= 0 ? text.sliced(at + mark.size()) : QByteArray();
}

QByteArray OwnedFile::contents(const QString& path, const QString& ownText)
{
    const bool isThere = QFileInfo(path).isFile();
    // Whose it is can not be told then, and the user's part not be kept.
    if (QFile file(path); isThere && !file.open(QIODevice::ReadOnly)) {
        throw Failure{u"%1: can not be read (%2). Close programs that use it; nothing was changed."_s.arg(
            QDir::toNativeSeparators(path), file.errorString())};
    }
    if (isThere && !isOurs(path)) {
        throw Failure{
            u"%1: is there already and was not written by this program. Move it away or choose another project "
            "name."_s.arg(path)};
    }
    return head.toByteArray() + ownText.toUtf8() + mark.toByteArray() + userPart(path);
}

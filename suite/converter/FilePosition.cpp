// SPDX-License-Identifier: MIT
#include "FilePosition.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Position
{
    qsizetype line = 1;
    qsizetype column = 1;
};

Position positionOf(const QString& fileName, size_t offset)
{
    Position position;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return position;
    }
    qint64 left = qint64(offset);
    while (left > 0) {
        const QByteArray block = file.read(std::min<qint64>(left, 1024LL * 1024));
        if (block.isEmpty()) {
            break;
        }
        left -= block.size();
        position.line += block.count('\n');
        const qsizetype lastBreak = block.lastIndexOf('\n');
        position.column = lastBreak < 0 ? position.column + block.size() : block.size() - lastBreak;
    }
    return position;
}

} // namespace

QString FilePosition::columnOf(const QString& fileName, size_t offset)
{
    const Position position = positionOf(fileName, offset);
    return u"%1:%2:%3"_s.arg(fileName).arg(position.line).arg(position.column);
}

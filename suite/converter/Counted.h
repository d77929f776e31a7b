// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// "1 file", "2 files": the number with the words for one or for any other number.
inline QString counted(qint64 number, QStringView one, QStringView many)
{
    return QStringLiteral("%1 %2").arg(number).arg(number == 1 ? one : many);
}

/// The same for a word whose plural ends with an s.
inline QString counted(qint64 number, const QString& one)
{
    return counted(number, one, QString(one + u's'));
}

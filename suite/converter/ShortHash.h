// SPDX-License-Identifier: MIT
#pragma once

#include <QCryptographicHash>
#include <QString>

/// Eight letters that stand for a text, for names that stay the same as long as the text does.
inline QString shortHash(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex().first(8));
}

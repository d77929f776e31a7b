// SPDX-License-Identifier: MIT
#include "project/TextEncoding.h"

#include <QByteArrayView>
#include <QFile>
#include <QStringDecoder>

namespace {

// Names of another encoding show long before; a larger file is hardly a project's.
constexpr qint64 lookedAt = 64LL * 1024 * 1024;

// A character may be cut in two where we stop looking.
QByteArrayView withoutCutEnd(QByteArrayView text)
{
    for (int bytes = 0; bytes < 3 && !text.isEmpty() && static_cast<uchar>(text.back()) >= 0x80; ++bytes) {
        text.chop(1);
    }
    return text;
}

} // namespace

QStringConverter::Encoding TextEncoding::of(QFile& file)
{
    const qint64 size = qMin(file.size(), lookedAt);
    uchar* const bytes = size > 0 ? file.map(0, size) : nullptr;
    if (!bytes) {
        return written;
    }
    const QByteArrayView whole(bytes, size);
    const QByteArrayView text = size < file.size() ? withoutCutEnd(whole) : whole;
    QStringConverter::Encoding encoding = QStringConverter::Utf8;
    if (!text.isValidUtf8()) {
        QStringDecoder decoder(QStringConverter::System);
        const QString decoded = decoder.decode(text);
        encoding = decoder.hasError() || decoded.isNull() ? QStringConverter::Latin1 : QStringConverter::System;
    }
    file.unmap(bytes);
    return encoding;
}

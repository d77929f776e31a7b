// SPDX-License-Identifier: MIT
#include "project/TextEncoding.h"

#include <QByteArrayView>
#include <QFile>
#include <QStringDecoder>

QStringConverter::Encoding TextEncoding::of(QFile& file)
{
    const qint64 size = file.size();
    uchar* const bytes = size > 0 ? file.map(0, size) : nullptr;
    if (!bytes) {
        return written;
    }
    const QByteArrayView text(bytes, size);
    QStringConverter::Encoding encoding = QStringConverter::Utf8;
    if (!text.isValidUtf8()) {
        QStringDecoder decoder(QStringConverter::System);
        const QString decoded = decoder.decode(text);
        encoding = decoder.hasError() || decoded.isNull() ? QStringConverter::Latin1 : QStringConverter::System;
    }
    file.unmap(bytes);
    return encoding;
}

// SPDX-License-Identifier: MIT
#include "process/OutputDecoder.h"

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace {

// How many of the last bytes begin a character of UTF-8 that has not yet come to its end.
qsizetype lengthOfBegun(QByteArrayView text)
{
    for (qsizetype length = 1; length <= 3 && length <= text.size(); ++length) {
        const auto byte = static_cast<unsigned char>(text[text.size() - length]);
        if (byte >= 0xC0) {
            const qsizetype whole = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
            return length < whole ? length : 0;
        }
        if (byte < 0x80) {
            break;
        }
    }
    return 0;
}

QString inOwnEncoding(QByteArrayView line)
{
#ifdef Q_OS_WIN
    QString text(line.size(), Qt::Uninitialized);
    const int length = ::MultiByteToWideChar(CP_OEMCP, 0, line.data(), int(line.size()),
                                             reinterpret_cast<wchar_t*>(text.data()), int(text.size()));
    text.truncate(length);
    return text;
#else
    return QString::fromLocal8Bit(line);
#endif
}

} // namespace

QString OutputDecoder::decode(const QByteArray& bytes)
{
    const QByteArray all = cut + bytes;
    const qsizetype begun = lengthOfBegun(all);
    cut = all.last(begun);
    return text(QByteArrayView(all).chopped(begun));
}

QString OutputDecoder::text(QByteArrayView bytes)
{
    if (bytes.isValidUtf8()) {
        return QString::fromUtf8(bytes);
    }
    QString result;
    while (!bytes.isEmpty()) {
        const qsizetype lineEnd = bytes.indexOf('\n');
        const QByteArrayView line = lineEnd < 0 ? bytes : bytes.first(lineEnd + 1);
        result += line.isValidUtf8() ? QString::fromUtf8(line) : inOwnEncoding(line);
        bytes = bytes.sliced(line.size());
    }
    return result;
}

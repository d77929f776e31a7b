// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

/// Gives a file to RapidJSON byte by byte; only one block of it is in memory.
class DatabaseStream
{
public:
    // NOLINTNEXTLINE(readability-identifier-naming): RapidJSON's names.
    using Ch = char;

    explicit DatabaseStream(QIODevice& source)
        : device(source)
        , block(blockSize, Qt::Uninitialized)
    {
        fill();
        if (end - at >= 3 && QByteArrayView(at, 3) == QByteArrayView("\xEF\xBB\xBF")) {
            at += 3;
        }
    }

    Ch Peek() const { return *at; }
    Ch Take()
    {
        const Ch character = *at;
        if (++at == end) {
            fill();
        }
        return character;
    }
    /// Bytes from the beginning of the file.
    size_t Tell() const { return size_t(blockStart + (at - block.constData())); }

    /// The line, from 1, of what is read next. Counts on from the last call.
    qsizetype line()
    {
        countLines();
        return lines;
    }

    // Only for writing in place, which does not happen.
    Ch* PutBegin() { return nullptr; }
    void Put(Ch) {}
    void Flush() {}
    size_t PutEnd(Ch*) { return 0; }

private:
    static constexpr qsizetype blockSize = 256 * 1024;

    void countLines()
    {
        lines += QByteArrayView(counted, at).count('\n');
        counted = at;
    }

    void fill()
    {
        countLines();
        blockStart += length;
        length = qMax(qint64(0), device.read(block.data(), blockSize - 1));
        // RapidJSON takes a zero for the end.
        block[length] = '\0';
        at = block.constData();
        counted = at;
        end = at + length + (length == 0 ? 1 : 0);
    }

    QIODevice& device;
    QByteArray block;
    qint64 blockStart = 0;
    qint64 length = 0;
    const char* at = nullptr;
    const char* end = nullptr;
    const char* counted = nullptr;
    qsizetype lines = 1;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "ControlCharacters.h"

#include <QByteArray>
#include <QIODevice>

#include <rapidjson/encodings.h>

#include <algorithm>
#include <cstring>

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
    /// What follows in this block up to the next character that means something in a string: a quote, a backslash or a
    /// control character.
    QByteArrayView plainText() const
    {
        qsizetype size = end - at;
        for (const char mark : {'"', '\\'}) {
            if (const void* found = std::memchr(at, mark, size_t(size))) {
                size = static_cast<const char*>(found) - at;
            }
        }
        const QByteArrayView text(at, size);
        if (!holdsControlCharacter(text)) {
            return text;
        }
        return text.first(std::ranges::find_if(text, isControlCharacter) - text.begin());
    }
    void skip(qsizetype bytes)
    {
        at += bytes;
        if (at == end) {
            fill();
        }
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
        // Before the first block there is nothing, not even an address.
        while (counted != at) {
            const void* found = std::memchr(counted, '\n', size_t(at - counted));
            if (!found) {
                break;
            }
            counted = static_cast<const char*>(found) + 1;
            ++lines;
        }
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

/// The encoding of a database: UTF-8 that is passed on as it is.
struct DatabaseEncoding : rapidjson::UTF8<>
{
};

/// Copies the plain pieces of a string at once, where RapidJSON would copy character by character.
template <>
struct rapidjson::Transcoder<DatabaseEncoding, rapidjson::UTF8<>>
    : rapidjson::Transcoder<rapidjson::UTF8<>, rapidjson::UTF8<>>
{
    // NOLINTNEXTLINE(readability-identifier-naming): RapidJSON's name.
    template <typename Output>
    static bool Transcode(DatabaseStream& input, Output& output)
    {
        const QByteArrayView text = input.plainText();
        std::memcpy(output.Push(rapidjson::SizeType(text.size())), text.data(), size_t(text.size()));
        input.skip(text.size());
        return true;
    }
};

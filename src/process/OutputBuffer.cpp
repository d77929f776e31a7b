// SPDX-License-Identifier: MIT
#include "process/OutputBuffer.h"

#include <algorithm>
#include <utility>

namespace {

// A program that never ends its line must not fill the memory.
constexpr qsizetype longestLine = 4096;
// What a view takes in within a second.
constexpr qsizetype keptCharacters = 1024LL * 1024;

} // namespace

OutputBuffer::OutputBuffer(qsizetype kept)
    : keptLines(kept)
{
}

void OutputBuffer::append(QStringView text)
{
    partialHeldBack = false;
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf(u'\n');
        const QStringView piece = end < 0 ? text : text.first(end);
        const qsizetype room = longestLine - partial.size();
        if (piece.size() > room) {
            partial += piece.first(room);
            addLine(std::exchange(partial, {}));
            text = text.sliced(room);
            continue;
        }
        partial += piece;
        if (end < 0) {
            return;
        }
        if (partial.endsWith(u'\r')) {
            partial.chop(1);
        }
        addLine(std::exchange(partial, {}));
        text = text.sliced(end + 1);
    }
}

void OutputBuffer::addLine(QString line)
{
    heldCharacters += line.size();
    lines += std::move(line);
    // Trimmed in steps: removing one line at a time from the front would cost each time.
    if (lines.size() >= 2 * keptLines || heldCharacters >= 2 * keptCharacters) {
        trim();
    }
}

void OutputBuffer::trim()
{
    qsizetype surplus = 0;
    while (lines.size() - surplus > keptLines || heldCharacters > keptCharacters) {
        heldCharacters -= lines[surplus++].size();
    }
    lines.remove(0, surplus);
    dropped += surplus;
}

QStringList OutputBuffer::take(qsizetype maximum, qsizetype characters)
{
    trim();
    qsizetype count = 0;
    while (count < std::min(maximum, lines.size()) && characters > 0) {
        heldCharacters -= lines[count].size();
        characters -= lines[count++].size() + 1;
    }
    QStringList taken = lines.first(count);
    lines.remove(0, count);
    if (lines.isEmpty() && !partial.isEmpty()) {
        if (partialHeldBack) {
            taken += std::exchange(partial, {});
        }
        partialHeldBack = !partialHeldBack;
    }
    return taken;
}

void OutputBuffer::endLine()
{
    if (!partial.isEmpty()) {
        addLine(std::exchange(partial, {}));
    }
}

qint64 OutputBuffer::takeDropped()
{
    return std::exchange(dropped, 0);
}

void OutputBuffer::clear()
{
    lines.clear();
    heldCharacters = 0;
    partial.clear();
    partialHeldBack = false;
    dropped = 0;
}

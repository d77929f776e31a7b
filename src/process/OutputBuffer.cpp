// SPDX-License-Identifier: MIT
#include "process/OutputBuffer.h"

#include <algorithm>
#include <utility>

namespace {

// A program that never ends its line must not fill the memory.
constexpr qsizetype longestLine = 4096;

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
    // Trimmed in steps: removing one line at a time from the front would cost each time.
    if (lines.size() >= 2 * keptLines) {
        const qsizetype surplus = lines.size() - keptLines;
        lines.remove(0, surplus);
        dropped += surplus;
    }
    lines += std::move(line);
}

QStringList OutputBuffer::take(qsizetype maximum, qsizetype characters)
{
    if (lines.size() > keptLines) {
        const qsizetype surplus = lines.size() - keptLines;
        lines.remove(0, surplus);
        dropped += surplus;
    }
    qsizetype count = 0;
    while (count < std::min(maximum, lines.size()) && characters > 0) {
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
    partial.clear();
    partialHeldBack = false;
    dropped = 0;
}

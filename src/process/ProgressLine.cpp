// SPDX-License-Identifier: MIT
#include "process/ProgressLine.h"
#include "process/OutputDecoder.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Longer than a count and any path that a window could show.
constexpr qsizetype longestHead = 1024;

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

// The place of the next line break or carriage return, or the end.
qsizetype lineLength(QByteArrayView text)
{
    const qsizetype lineFeed = text.indexOf('\n');
    const qsizetype carriageReturn = (lineFeed < 0 ? text : text.first(lineFeed)).indexOf('\r');
    return carriageReturn >= 0 ? carriageReturn : lineFeed >= 0 ? lineFeed : text.size();
}

QString plainItem(QByteArrayView text)
{
    // Colours and the like, which are meant for a terminal.
    static const QRegularExpression escape(u"\\x1b\\[[0-9;?]*[A-Za-z]?"_s);
    QString item = OutputDecoder::text(text).remove(escape);
    item.removeIf([](QChar character) { return character.category() == QChar::Other_Control && character != u'\t'; });
    return item.simplified();
}

} // namespace

bool ProgressLine::append(QByteArrayView output)
{
    const Progress before = current;
    while (!output.isEmpty()) {
        if (head.isEmpty() && (inOtherLine || output.front() != '[')) {
            output = skipOtherLines(output);
            continue;
        }
        const qsizetype length = lineLength(output);
        const qsizetype room = longestHead - head.size();
        head += output.first(std::min(length, room));
        if (length == output.size()) {
            break;
        }
        readHead();
        head.clear();
        output = output.sliced(length + 1);
    }
    // A program that begins its lines with the carriage return does not end the one that counts.
    readHead();
    return current != before;
}

// What remains from the next bracket that begins a line. A flood is mostly other lines, and shall cost little.
QByteArrayView ProgressLine::skipOtherLines(QByteArrayView output)
{
    for (qsizetype bracket = output.indexOf('[', 1); bracket >= 0; bracket = output.indexOf('[', bracket + 1)) {
        if (isLineEnd(output[bracket - 1])) {
            inOtherLine = false;
            return output.sliced(bracket);
        }
    }
    inOtherLine = !isLineEnd(output.back());
    return {};
}

void ProgressLine::readHead()
{
    if (!head.startsWith('[')) {
        return;
    }
    const qsizetype slash = head.indexOf('/');
    const qsizetype end = head.indexOf(']');
    if (slash < 2 || end < slash + 2) {
        return;
    }
    const auto isNumber = [](QByteArrayView text) {
        return text.size() <= 9 && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    };
    const QByteArrayView done = QByteArrayView(head).sliced(1, slash - 1);
    const QByteArrayView total = QByteArrayView(head).sliced(slash + 1, end - slash - 1);
    if (!isNumber(done) || !isNumber(total) || total.toInt() == 0 || done.toInt() > total.toInt()) {
        return;
    }
    current = {done.toInt(), total.toInt(), plainItem(QByteArrayView(head).sliced(end + 1))};
}

void ProgressLine::clear()
{
    head.clear();
    inOtherLine = false;
    current = {};
}

QString ProgressLine::terminalLine(const Progress& progress, int columns)
{
    QString clear = u"\r\x1b[K"_s;
    if (!progress.isKnown()) {
        return clear;
    }
    QString line = u"[%1/%2] "_s.arg(progress.done).arg(progress.total) + progress.item;
    // The last column is left empty: some terminals begin a new line there.
    const qsizetype room = std::max(columns - 1, 1);
    if (line.size() > room) {
        line = line.first(room - 1) + u'\u2026';
    }
    return clear + line;
}

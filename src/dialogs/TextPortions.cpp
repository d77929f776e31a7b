// SPDX-License-Identifier: MIT
#include "dialogs/TextPortions.h"
#include "dialogs/PlainText.h"

#include <QDeadlineTimer>
#include <QPlainTextEdit>
#include <QTextCursor>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 readSize = 256LL * 1024;
constexpr qsizetype portionSize = 8LL * 1024;
constexpr int portionLines = 300;
// How long the window may be kept waiting at a time, give or take a portion.
constexpr auto patience = 12ms;
// A view lays out a line as a whole.
constexpr qsizetype longestLine = 1'000;
// What a window can still show with comfort.
constexpr qint64 mostCharacters = 64LL * 1024 * 1024;
constexpr qint64 mostLines = 1'000'000;

/// The end of the next portion: after a line break where there is one.
qsizetype portionEnd(QStringView text, qsizetype from)
{
    const QStringView portion = text.sliced(from, std::min(portionSize, text.size() - from));
    qsizetype end = -1;
    for (int line = 0; line < portionLines; ++line) {
        const qsizetype lineEnd = portion.indexOf(u'\n', end + 1);
        if (lineEnd < 0) {
            return line > 0 && from + portion.size() < text.size() ? from + end + 1 : from + portion.size();
        }
        end = lineEnd;
    }
    return from + end + 1;
}

} // namespace

TextPortions::TextPortions(QPlainTextEdit& target, QObject* parent)
    : QObject(parent)
    , view(target)
{
    connect(&timer, &QTimer::timeout, this, &TextPortions::appendSome);
}

void TextPortions::show(const QString& text)
{
    restart();
    pending = text;
    appendPortion();
}

void TextPortions::show(std::unique_ptr<QIODevice> device)
{
    restart();
    source = std::move(device);
    decoder = {};
    appendPortion();
}

void TextPortions::restart()
{
    view.clear();
    source.reset();
    pending.clear();
    position = 0;
    characters = 0;
    lines = 0;
    lineLength = 0;
    timer.start(0);
}

void TextPortions::finish()
{
    while (!isDone()) {
        appendPortion();
    }
}

void TextPortions::refill()
{
    pending = decoder.decode(source->read(readSize));
    position = 0;
    if (source->atEnd()) {
        source.reset();
    }
}

void TextPortions::appendSome()
{
    const QDeadlineTimer deadline(patience);
    do {
        appendPortion();
    } while (timer.isActive() && !deadline.hasExpired());
}

void TextPortions::appendPortion()
{
    if (source && position >= pending.size()) {
        refill();
    }
    if (isDone()) {
        timer.stop();
        pending.clear();
        position = 0;
        Q_EMIT completed();
        return;
    }
    const qsizetype end = portionEnd(pending, position);
    const QStringView portion = QStringView(pending).sliced(position, end - position);
    append(PlainText::withShortLines(portion, longestLine, lineLength));
    position = end;
    characters += portion.size();
    lines += portion.count(u'\n');
    if ((characters >= mostCharacters || lines >= mostLines) && !isDone()) {
        source.reset();
        position = pending.size();
        append(u'\n' + tr("[The text is longer; only its beginning is shown]"));
    }
}

void TextPortions::append(const QString& text)
{
    QTextCursor cursor(view.document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text);
}

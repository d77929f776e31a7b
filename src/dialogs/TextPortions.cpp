// SPDX-License-Identifier: MIT
#include "dialogs/TextPortions.h"
#include "dialogs/PlainText.h"

#include <QPlainTextEdit>
#include <QTextCursor>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype portionSize = 128LL * 1024;
constexpr int portionLines = 3000;
// A view lays out a line as a whole.
constexpr qsizetype longestLine = 10'000;
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
    connect(&timer, &QTimer::timeout, this, &TextPortions::appendPortion);
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
    decoder = QStringDecoder(QStringConverter::System);
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
    pending = decoder.decode(source->read(portionSize));
    position = 0;
    if (source->atEnd()) {
        source.reset();
    }
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
        return;
    }
    const qsizetype end = portionEnd(pending, position);
    const QStringView portion = QStringView(pending).sliced(position, end - position);
    append(PlainText::withShortLines(portion, longestLine));
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

// SPDX-License-Identifier: MIT
#include "CommandWords.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

bool isBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

// Between double quotes a shell's backslash protects only these.
bool isEscapable(char character)
{
    return character == '"' || character == '\\' || character == '$' || character == '`';
}

bool holds(QByteArrayView text, char character)
{
    return !text.isEmpty() && std::memchr(text.data(), character, size_t(text.size())) != nullptr;
}

// Nothing but words and the blanks between them, as most commands are.
bool isPlain(QByteArrayView command)
{
    static constexpr std::array others{'\\', '"', '\'', '\t', '\n', '\r', '\v', '\f'};
    return std::ranges::none_of(others, [&](char character) { return holds(command, character); });
}

} // namespace

void CommandWords::clear()
{
    // Keeps what is allocated.
    buffer.resize(0);
    spans.clear();
}

void CommandWords::add(QByteArrayView word)
{
    begin();
    buffer.append(word);
    end();
}

void CommandWords::end()
{
    spans.emplace_back(start, buffer.size() - start);
    // Else two words could look like one to who compares pieces of the buffer.
    buffer.append('\0');
}

QByteArrayView CommandWords::operator[](qsizetype i) const
{
    const auto& [first, length] = spans[size_t(i)];
    return QByteArrayView(buffer).sliced(first, length);
}

QByteArrayView CommandWords::piece(qsizetype first, qsizetype last) const
{
    const qsizetype begin = first < size() ? spans[size_t(first)].first : buffer.size();
    const qsizetype end = last < size() ? spans[size_t(last)].first : buffer.size();
    return QByteArrayView(buffer).sliced(begin, end - begin);
}

QStringList CommandWords::texts() const
{
    QStringList result;
    result.reserve(size());
    for (qsizetype i = 0; i < size(); ++i) {
        result += QString::fromUtf8((*this)[i]);
    }
    return result;
}

bool CommandWords::split(QByteArrayView command, Rules rules)
{
    if (!isPlain(command)) {
        return rules == Rules::Windows ? splitWindows(command) : splitShell(command, rules == Rules::ResponseFile);
    }
    splitPlain(command);
    return true;
}

void CommandWords::splitPlain(QByteArrayView command)
{
    const qsizetype base = buffer.size();
    buffer.append(command);
    qsizetype at = 0;
    while (at < command.size()) {
        const void* blank = std::memchr(command.data() + at, ' ', size_t(command.size() - at));
        const qsizetype wordEnd = blank ? static_cast<const char*>(blank) - command.data() : command.size();
        if (wordEnd > at) {
            spans.emplace_back(base + at, wordEnd - at);
        }
        at = wordEnd + 1;
    }
}

bool CommandWords::splitShell(QByteArrayView command, bool everywhere)
{
    bool inWord = false;
    char quote = 0;
    for (qsizetype i = 0; i < command.size(); ++i) {
        const char character = command[i];
        if (quote == 0 && isBlank(character)) {
            if (inWord) {
                end();
            }
            inWord = false;
            continue;
        }
        if (!inWord) {
            begin();
            inWord = true;
        }
        const bool hasNext = i + 1 < command.size();
        if (quote != 0 && character == quote) {
            quote = 0;
        } else if (quote == 0 && (character == '"' || character == '\'')) {
            quote = character;
        } else if (character == '\\' && hasNext &&
                   (everywhere || quote == 0 || (quote == '"' && isEscapable(command[i + 1])))) {
            buffer.append(command[++i]);
        } else {
            buffer.append(character);
        }
    }
    if (inWord) {
        end();
    }
    return quote == 0;
}

// Backslashes are names' own characters except before a quote, where two stand for one and an odd one protects it.
bool CommandWords::splitWindows(QByteArrayView command)
{
    bool inWord = false;
    bool quoted = false;
    for (qsizetype i = 0; i < command.size(); ++i) {
        if (!quoted && isBlank(command[i])) {
            if (inWord) {
                end();
            }
            inWord = false;
            continue;
        }
        if (!inWord) {
            begin();
            inWord = true;
        }
        qsizetype slashes = 0;
        while (i < command.size() && command[i] == '\\') {
            ++slashes;
            ++i;
        }
        const bool atQuote = i < command.size() && command[i] == '"';
        buffer.append(atQuote ? slashes / 2 : slashes, '\\');
        if (!atQuote) {
            i -= slashes > 0 ? 1 : 0;
            buffer.append(slashes > 0 ? QByteArrayView() : command.sliced(i, 1));
        } else if (slashes % 2 == 1) {
            buffer.append('"');
        } else if (quoted && i + 1 < command.size() && command[i + 1] == '"') {
            // Two within quotes are one that is meant.
            buffer.append('"');
            ++i;
        } else {
            quoted = !quoted;
        }
    }
    if (inWord) {
        end();
    }
    return !quoted;
}

// SPDX-License-Identifier: MIT
#include "CommandWords.h"
#include "ControlCharacters.h"

#include <algorithm>
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

// Nothing but words and the blanks between them, as most commands are.
bool isPlain(QByteArrayView command)
{
    const auto holds = [command](char character) {
        return !command.isEmpty() && std::memchr(command.data(), character, size_t(command.size())) != nullptr;
    };
    return !holds('\\') && !holds('"') && !holds('\'') && !holdsControlCharacter(command);
}

qsizetype commonStart(QByteArrayView one, QByteArrayView other)
{
    constexpr qsizetype step = 64;
    const qsizetype size = std::min(one.size(), other.size());
    qsizetype at = 0;
    while (at + step <= size && std::memcmp(one.data() + at, other.data() + at, step) == 0) {
        at += step;
    }
    return std::mismatch(one.begin() + at, one.begin() + size, other.begin() + at).first - one.begin();
}

} // namespace

void CommandWords::clear()
{
    if (isPlainCommand) {
        previous.swap(buffer);
        previousSpans.swap(spans);
    }
    isPlainCommand = false;
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
    isPlainCommand = false;
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
    const qsizetype known = buffer.isEmpty() ? takeKnownWords(command) : 0;
    if (isPlain(command.sliced(known))) {
        isPlainCommand = buffer.isEmpty();
        splitPlain(command, known);
        return true;
    }
    if (known > 0) {
        spans.clear();
    }
    return rules == Rules::Windows ? splitWindows(command) : splitShell(command, rules == Rules::ResponseFile);
}

// Commands mostly begin as the one before does; gives where the first word begins that is not known from there.
qsizetype CommandWords::takeKnownWords(QByteArrayView command)
{
    const qsizetype same = commonStart(previous, command);
    // Of a known word the blank behind it is the same, too.
    const auto end = std::ranges::partition_point(previousSpans,
                                                  [same](const Span& word) { return word.first + word.second < same; });
    spans.assign(previousSpans.begin(), end);
    return spans.empty() ? 0 : spans.back().first + spans.back().second + 1;
}

void CommandWords::splitPlain(QByteArrayView command, qsizetype at)
{
    const qsizetype base = buffer.size();
    buffer.append(command);
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

// SPDX-License-Identifier: MIT
#include "CommandSplitter.h"

#include <utility>

namespace {

// Between double quotes a backslash protects only these.
bool isEscapable(QChar character)
{
    return character == u'"' || character == u'\\' || character == u'$' || character == u'`';
}

} // namespace

QStringList splitCommand(QStringView command)
{
    QStringList words;
    QString word;
    bool inWord = false;
    QChar quote;
    for (qsizetype i = 0; i < command.size(); ++i) {
        const QChar character = command[i];
        const QChar next = i + 1 < command.size() ? command[i + 1] : QChar();
        if (quote.isNull() && character.isSpace()) {
            if (inWord) {
                words += std::exchange(word, {});
            }
            inWord = false;
            continue;
        }
        inWord = true;
        if (character == quote) {
            quote = QChar();
        } else if (quote.isNull() && (character == u'"' || character == u'\'')) {
            quote = character;
        } else if (character == u'\\' && !next.isNull() && (quote.isNull() || (quote == u'"' && isEscapable(next)))) {
            word += next;
            ++i;
        } else {
            word += character;
        }
    }
    if (inWord) {
        words += word;
    }
    return words;
}

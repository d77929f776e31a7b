// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

#include <utility>
#include <vector>

/// The words of a command, as UTF-8 in one buffer that is used again for the next command.
class CommandWords
{
public:
    /// Whose rules say where a word ends.
    enum class Rules {
        Shell,        ///< blanks separate, quotes and backslashes protect as in a POSIX shell; nothing is expanded
        Windows,      ///< as the C run-time of Windows divides a command line
        ResponseFile, ///< as GNU compilers read an @file: a backslash protects everywhere
    };

    void clear();
    void add(QByteArrayView word);
    /// Appends the words of a command; false when a quote is not closed, which then ends with the command.
    bool split(QByteArrayView command, Rules rules);

    qsizetype size() const { return qsizetype(spans.size()); }
    QByteArrayView operator[](qsizetype i) const
    {
        const auto& [first, length] = spans[size_t(i)];
        return QByteArrayView(buffer).sliced(first, length);
    }
    /// The words from the first to before the last with what separates them.
    QByteArrayView piece(qsizetype first, qsizetype last) const;
    QStringList texts() const;
    bool isUtf8() const { return QByteArrayView(buffer).isValidUtf8(); }

private:
    /// First byte and length.
    using Span = std::pair<qsizetype, qsizetype>;

    qsizetype takeKnownWords(QByteArrayView command);
    void splitPlain(QByteArrayView command, qsizetype at);
    bool splitShell(QByteArrayView command, bool everywhere);
    bool splitWindows(QByteArrayView command);
    void begin() { start = buffer.size(); }
    void end();

    QByteArray buffer;
    std::vector<Span> spans;
    qsizetype start = 0;
    // Nothing but a command of blanks and words is in the buffer.
    bool isPlainCommand = false;
    QByteArray previous;
    std::vector<Span> previousSpans;
};

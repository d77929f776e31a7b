// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/TextExpander.h"

#include <QBuffer>
#include <QStringList>
#include <QXmlStreamReader>

#include <array>
#include <functional>
#include <initializer_list>
#include <type_traits>

/// Told of what a reader passes over, or takes for something else than its author can have meant.
using RemarkFunction = std::function<void(qint64 line, const QString& text)>;

/// Reads a definitions file; with a function for remarks it is checked at the same time.
class DefinitionsReader : public QXmlStreamReader
{
public:
    explicit DefinitionsReader(const QByteArray& document, RemarkFunction function = {});

    /// Whether anybody hears remarks; without, what only looks for them can be left out.
    bool isChecked() const { return bool(remarkFunction); }
    void remark(const QString& text) { remarkAt(lineNumber(), text); }
    void remarkAt(qint64 line, const QString& text);
    /// The element at which the reader stands is passed over.
    void passedOver(QStringView parent);
    /// Which of these values an attribute has; none where it is absent or another is given.
    QLatin1StringView choice(QLatin1StringView attribute, std::initializer_list<QLatin1StringView> values);
    /// The element's text, which lies in the reader until the next one is read.
    QStringView readText();
    QString readElementText() { return shared(readText()); }
    /// The same with its placeholders expanded.
    QString readExpanded(const TextExpander& expand) { return shared(expand(readElementText())); }
    /// The words of the element's text, which white space separates.
    QStringList readWords();
    /// The text, which shares its memory with an equal one that was lately asked for: definitions repeat themselves.
    QString shared(QStringView text);
    /// The element's text as a number; 0 where it is none.
    int readNumber();

private:
    /// Of a device the base decodes a piece at a time, of bytes the whole document at once.
    QBuffer source;
    QString lastText;
    std::array<QString, 512> lately;
    RemarkFunction remarkFunction;
};

/// The name under which the definitions file knows the system this program was built for.
QStringView currentPlatformName();

/// The parts of a text between runs of white space; one at either end leaves an empty part there.
QStringList splitAtWhiteSpace(QStringView text);

/// Reads the next token; a section for another platform is skipped up to its first matching end element.
QXmlStreamReader::TokenType readToken(QXmlStreamReader& xml, QStringView platform = currentPlatformName());

template <typename Reader, typename OnStart>
void readChild(Reader& xml, QStringView parent, OnStart& onStart)
{
    const qint64 offset = xml.characterOffset();
    onStart(xml.name());
    if constexpr (std::is_same_v<Reader, DefinitionsReader>) {
        if (xml.isChecked() && xml.isStartElement() && xml.characterOffset() == offset) {
            xml.passedOver(parent);
        }
    }
}

/// Calls onStart for every start element up to the end element of that name, the end of the input or an error.
/// onStart may read the element's text; what it leaves unread is examined in turn.
template <typename Reader, typename OnStart>
void readRecord(Reader& xml, QStringView element, OnStart&& onStart)
{
    for (;;) {
        switch (readToken(xml)) {
        case QXmlStreamReader::Invalid:
        case QXmlStreamReader::EndDocument:
            return;
        case QXmlStreamReader::EndElement:
            if (xml.name() == element) {
                return;
            }
            break;
        case QXmlStreamReader::StartElement:
            readChild(xml, element, onStart);
            break;
        default:
            break;
        }
    }
}

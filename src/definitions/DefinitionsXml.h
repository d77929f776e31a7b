// SPDX-License-Identifier: MIT
#pragma once

#include <QBuffer>
#include <QStringList>
#include <QXmlStreamReader>

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
    /// An attribute that has one of these values, where it is given.
    QString choice(QLatin1StringView attribute, std::initializer_list<QLatin1StringView> values);
    /// As the base's, without its copies: most elements hold one piece of text.
    QString readElementText();
    /// The element's text as a number; 0 where it is none.
    int readNumber();

private:
    /// Of a device the base decodes a piece at a time, of bytes the whole document at once.
    QBuffer source;
    RemarkFunction remarkFunction;
};

/// The name under which the definitions file knows the system this program was built for.
QStringView currentPlatformName();

/// The words of a text, which white space separates.
QStringList wordsOf(const QString& text);

/// The parts of a text between runs of white space; one at either end leaves an empty part there.
QStringList splitAtWhiteSpace(const QString& text);

/// Reads the next token; a section for another platform is skipped up to its first matching end element.
QXmlStreamReader::TokenType readToken(QXmlStreamReader& xml, QStringView platform = currentPlatformName());

template <typename Reader, typename OnStart>
void readChild(Reader& xml, QStringView parent, OnStart& onStart)
{
    const qint64 offset = xml.characterOffset();
    onStart(xml.name());
    if constexpr (std::is_same_v<Reader, DefinitionsReader>) {
        if (xml.isStartElement() && xml.characterOffset() == offset) {
            xml.passedOver(parent);
        }
    }
}

/// Calls onStart for every start element up to the end element of that name, the end of the input or an error.
/// onStart may read the element's text; what it leaves unread is examined in turn.
template <typename Reader, typename OnStart>
void readRecord(Reader& xml, QStringView element, OnStart&& onStart)
{
    while (!xml.atEnd() && !xml.hasError()) {
        switch (readToken(xml)) {
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

// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QXmlStreamReader>

/// The name under which the definitions file knows the system this program was built for.
QStringView currentPlatformName();

/// The parts of a text between runs of white space; one at either end leaves an empty part there.
QStringList splitAtWhiteSpace(const QString& text);

/// Reads the next token; a section for another platform is skipped up to its first matching end element.
QXmlStreamReader::TokenType readToken(QXmlStreamReader& xml, QStringView platform = currentPlatformName());

/// Calls onStart for every start element up to the end element of that name, the end of the input or an error.
/// onStart may read the element's text; what it leaves unread is examined in turn.
template <typename OnStart>
void readRecord(QXmlStreamReader& xml, QStringView element, OnStart&& onStart)
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
            onStart(xml.name());
            break;
        default:
            break;
        }
    }
}

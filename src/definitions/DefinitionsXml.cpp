// SPDX-License-Identifier: MIT
#include "definitions/DefinitionsXml.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, 4> platformNames = {u"WINDOWS_PLATFORM", u"LINUX", u"SOLARIS", u"HP"};

bool isForeignPlatform(QStringView name, QStringView platform)
{
    return std::ranges::find(platformNames, name) != platformNames.end() && name != platform;
}

template <typename Take>
void forEachPart(QStringView text, const Take& take)
{
    qsizetype begin = 0;
    for (qsizetype at = 0; at < text.size();) {
        if (!text[at].isSpace()) {
            ++at;
            continue;
        }
        take(text.sliced(begin, at - begin));
        while (at < text.size() && text[at].isSpace()) {
            ++at;
        }
        begin = at;
    }
    take(text.sliced(begin));
}

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(DefinitionsReader)
};

} // namespace

DefinitionsReader::DefinitionsReader(const QByteArray& document, RemarkFunction function)
    : remarkFunction(std::move(function))
{
    source.setData(document);
    source.open(QIODevice::ReadOnly);
    setDevice(&source);
}

void DefinitionsReader::remarkAt(qint64 line, const QString& text)
{
    if (remarkFunction) {
        remarkFunction(line, text);
    }
}

void DefinitionsReader::passedOver(QStringView parent)
{
    if (remarkFunction && name() != currentPlatformName()) {
        remark(Text::tr("<%1> is not known in <%2> and is passed over").arg(name(), parent));
    }
}

QLatin1StringView DefinitionsReader::choice(QLatin1StringView attribute,
                                            std::initializer_list<QLatin1StringView> values)
{
    const QXmlStreamAttributes given = attributes();
    if (given.isEmpty()) {
        return {};
    }
    const QStringView value = given.value(attribute);
    const auto* known = std::ranges::find_if(values, [&](QLatin1StringView each) { return value == each; });
    if (known != values.end()) {
        return *known;
    }
    if (isChecked() && given.hasAttribute(attribute)) {
        QStringList names;
        std::ranges::copy(values, std::back_inserter(names));
        remark(
            Text::tr("%1=\"%2\" counts as absent; known are %3").arg(QString(attribute), value, names.join(u", "_s)));
    }
    return {};
}

QStringView DefinitionsReader::readText()
{
    lastText.resize(0);
    for (TokenType token = readNext(); token != EndElement && token != Invalid; token = readNext()) {
        if (token == StartElement) {
            raiseError(u"Expected character data."_s);
        } else if (token == Characters || token == EntityReference) {
            lastText += text();
        }
    }
    return lastText;
}

QStringList DefinitionsReader::readWords()
{
    QStringList words;
    const QStringView text = readText();
    words.reserve(text.count(u' ') + 1);
    forEachPart(text, [&](QStringView part) {
        if (!part.isEmpty()) {
            words += shared(part);
        }
    });
    return words;
}

QString DefinitionsReader::shared(QStringView text)
{
    if (text.isEmpty()) {
        return {};
    }
    // Four characters of a text and its length tell most apart.
    std::size_t place = std::size_t(text.size());
    for (const qsizetype at : {qsizetype(0), text.size() / 4, text.size() / 2, text.size() - 1}) {
        place = place * 31 + text[at].unicode();
    }
    QString& known = lately[place % lately.size()];
    if (known != text) {
        known = text.toString();
    }
    return known;
}

int DefinitionsReader::readNumber()
{
    const QStringView number = readText();
    bool isNumber = false;
    const int value = number.toInt(&isNumber);
    if (!isNumber) {
        remark(Text::tr("<%1> wants a number; \"%2\" counts as 0").arg(name(), number));
    }
    return value;
}

QStringView currentPlatformName()
{
#if defined(Q_OS_WIN)
    return u"WINDOWS_PLATFORM";
#elif defined(Q_OS_SOLARIS)
    return u"SOLARIS";
#elif defined(Q_OS_HPUX)
    return u"HP";
#else
    return u"LINUX";
#endif
}

QStringList splitAtWhiteSpace(QStringView text)
{
    QStringList parts;
    parts.reserve(text.count(u' ') + 1);
    forEachPart(text, [&](QStringView part) { parts += part.toString(); });
    return parts;
}

QXmlStreamReader::TokenType readToken(QXmlStreamReader& xml, QStringView platform)
{
    const QXmlStreamReader::TokenType token = xml.readNext();
    if (token != QXmlStreamReader::StartElement || !isForeignPlatform(xml.name(), platform)) {
        return token;
    }
    const QString section = xml.name().toString();
    while (!xml.atEnd() && !(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == section)) {
    }
    return xml.tokenType();
}

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

QString DefinitionsReader::choice(QLatin1StringView attribute, std::initializer_list<QLatin1StringView> values)
{
    const QXmlStreamAttributes given = attributes();
    if (given.isEmpty()) {
        return {};
    }
    QString value = given.value(attribute).toString();
    if (isChecked() && given.hasAttribute(attribute) && std::ranges::find(values, value) == values.end()) {
        QStringList known;
        std::ranges::copy(values, std::back_inserter(known));
        remark(
            Text::tr("%1=\"%2\" counts as absent; known are %3").arg(QString(attribute), value, known.join(u", "_s)));
    }
    return value;
}

QString DefinitionsReader::readElementText()
{
    QString result;
    while (readNext() != EndElement && !hasError()) {
        if (isStartElement()) {
            raiseError(u"Expected character data."_s);
        } else if (result.isEmpty() && isCharacters()) {
            result = text().toString();
        } else if (isCharacters() || isEntityReference()) {
            result += text();
        }
    }
    return result;
}

int DefinitionsReader::readNumber()
{
    const QString element = name().toString();
    const QString text = readElementText();
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber) {
        remark(Text::tr("<%1> wants a number; \"%2\" counts as 0").arg(element, text));
    }
    return number;
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

QStringList wordsOf(const QString& text)
{
    QStringList words = splitAtWhiteSpace(text);
    words.removeAll(QString());
    return words;
}

QStringList splitAtWhiteSpace(const QString& text)
{
    QStringList parts;
    parts.reserve(text.count(u' ') + 1);
    qsizetype begin = 0;
    for (qsizetype at = 0; at < text.size();) {
        if (!text[at].isSpace()) {
            ++at;
            continue;
        }
        parts += text.sliced(begin, at - begin);
        while (at < text.size() && text[at].isSpace()) {
            ++at;
        }
        begin = at;
    }
    return parts << text.sliced(begin);
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

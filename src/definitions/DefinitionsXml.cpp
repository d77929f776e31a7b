// SPDX-License-Identifier: MIT
#include "definitions/DefinitionsXml.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, 4> platformNames = {u"WINDOWS_PLATFORM", u"LINUX", u"SOLARIS", u"HP"};

bool isForeignPlatform(QStringView name, QStringView platform)
{
    return std::ranges::find(platformNames, name) != platformNames.end() && name != platform;
}

} // namespace

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

QStringList splitAtWhiteSpace(const QString& text)
{
    static const QRegularExpression whiteSpace(u"\\s+"_s, QRegularExpression::UseUnicodePropertiesOption);
    return text.split(whiteSpace);
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

// SPDX-License-Identifier: MIT
#include "definitions/Placeholders.h"
#include "definitions/EnvironmentValue.h"

#include <QDir>
#include <QSettings>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// %R%[organisation%]application%key[%rest…]: without an organisation it is the suite's own.
QString settingsValue(const QString& text)
{
    const QStringList parts = text.split(u'%', Qt::SkipEmptyParts);
    if (parts.size() < 3) {
        return text;
    }
    const bool ownOrganisation = parts.size() == 3 || text.endsWith(u'%');
    const QString organisation = ownOrganisation ? u"KOVRA"_s : parts[1];
    const qsizetype application = ownOrganisation ? 1 : 2;
    const QSettings store(QSettings::SystemScope, organisation, parts[application]);
    return store.value(parts[application + 1]).toString() + parts.mid(application + 2).join(QString());
}

QString withEnvironmentValue(QString text, const QStringList& environment)
{
    const QStringList parts = text.split(u'%');
    if (parts.size() < 3) {
        return text;
    }
    return text.replace(u'%' + parts[1] + u'%', EnvironmentValue(parts[1], false, environment));
}

// Where the placeholder is next, from a per cent sign on: a search for the whole of it takes longer to set up than
// texts are.
qsizetype next(QStringView text, QLatin1StringView placeholder, qsizetype sign)
{
    while (sign >= 0 && !text.sliced(sign).startsWith(placeholder)) {
        sign = text.indexOf(u'%', sign + 1);
    }
    return sign;
}

QString replaced(QString text, qsizetype at, QLatin1StringView placeholder, const QString& folder)
{
    while (at >= 0) {
        text.replace(at, placeholder.size(), folder);
        at = next(text, placeholder, text.indexOf(u'%', at + folder.size()));
    }
    return text;
}

} // namespace

QString ExpandPlaceholders(const QString& text, const Places& places, const QStringList& environment)
{
    const qsizetype first = text.indexOf(u'%');
    if (first < 0) {
        return text;
    }
    const std::pair<QLatin1StringView, const QString&> folders[] = {
        {"%I%"_L1, places.installPath}, {"%ORVC%"_L1, places.cInstallDir}, {"%ORVCPP%"_L1, places.cppInstallDir}};
    for (const auto& [placeholder, folder] : folders) {
        if (const qsizetype at = next(text, placeholder, first); at >= 0) {
            return QDir::cleanPath(replaced(text, at, placeholder, folder));
        }
    }
    if (text.contains("%R%"_L1)) {
        return settingsValue(text);
    }
    return withEnvironmentValue(text, environment);
}

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

// A search for the whole placeholder, which begins with a per cent sign, takes longer to set up than texts are.
qsizetype indexOf(QStringView placeholder, QStringView text, qsizetype from)
{
    qsizetype at = text.indexOf(u'%', from);
    while (at >= 0 && !text.sliced(at).startsWith(placeholder)) {
        at = text.indexOf(u'%', at + 1);
    }
    return at;
}

QString withFolder(QStringView text, QStringView placeholder, const QString& folder, qsizetype first)
{
    QString result;
    result.reserve(text.size() + folder.size());
    qsizetype begin = 0;
    for (qsizetype at = first; at >= 0; at = indexOf(placeholder, text, begin)) {
        result += text.sliced(begin, at - begin);
        result += folder;
        begin = at + placeholder.size();
    }
    result += text.sliced(begin);
    return QDir::cleanPath(result);
}

} // namespace

QString ExpandPlaceholders(const QString& text, const Places& places, const QStringList& environment)
{
    const qsizetype first = text.indexOf(u'%');
    if (first < 0) {
        return text;
    }
    const std::pair<QStringView, const QString&> folders[] = {
        {u"%I%", places.installPath}, {u"%ORVC%", places.cInstallDir}, {u"%ORVCPP%", places.cppInstallDir}};
    for (const auto& [placeholder, folder] : folders) {
        if (const qsizetype at = indexOf(placeholder, text, first); at >= 0) {
            return withFolder(text, placeholder, folder, at);
        }
    }
    if (text.contains("%R%"_L1)) {
        return settingsValue(text);
    }
    return withEnvironmentValue(text, environment);
}

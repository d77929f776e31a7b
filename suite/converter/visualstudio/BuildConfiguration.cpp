// SPDX-License-Identifier: MIT
#include "BuildConfiguration.h"
#include "../Failure.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

// Solutions call "x86" what projects call "Win32".
QString platformKey(const QString& platform)
{
    const QString key = platform.toLower();
    return key == "x86"_L1 ? u"win32"_s : key;
}

bool fits(const BuildConfiguration& one, const BuildConfiguration& wanted)
{
    return (wanted.configuration.isEmpty() ||
            one.configuration.compare(wanted.configuration, Qt::CaseInsensitive) == 0) &&
           (wanted.platform.isEmpty() || platformKey(one.platform) == platformKey(wanted.platform));
}

} // namespace

BuildConfiguration BuildConfiguration::fromText(const QString& text)
{
    return {text.section(u'|', 0, 0).trimmed(), text.section(u'|', 1).trimmed()};
}

BuildConfiguration BuildConfiguration::choose(const QList<BuildConfiguration>& all, const BuildConfiguration& wanted,
                                              const QString& file)
{
    QStringList names;
    for (const BuildConfiguration& one : all) {
        if (fits(one, wanted)) {
            return one;
        }
        names += one.text();
    }
    names.removeDuplicates();
    throw Failure{u"%1: is not built as \"%2\". Choose configuration and platform of: %3."_s.arg(file, wanted.text(),
                                                                                                 names.join(", "_L1))};
}

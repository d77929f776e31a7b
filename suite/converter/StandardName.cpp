// SPDX-License-Identifier: MIT
#include "StandardName.h"

#include <QHash>

using namespace Qt::StringLiterals;

QString standardName(const QString& value)
{
    static const QHash<QString, QString> names{
        {u"c++latest"_s, u"c++23"_s},  {u"c++23preview"_s, u"c++23"_s}, {u"clatest"_s, u"c2x"_s},
        {u"iso9899:1990"_s, u"c90"_s}, {u"iso9899:199409"_s, u"c90"_s}, {u"iso9899:1999"_s, u"c99"_s},
        {u"iso9899:199x"_s, u"c99"_s}, {u"iso9899:2011"_s, u"c11"_s},   {u"iso9899:2017"_s, u"c17"_s},
        {u"iso9899:2018"_s, u"c17"_s},
    };
    return names.value(value, value);
}

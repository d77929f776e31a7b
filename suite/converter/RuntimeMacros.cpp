// SPDX-License-Identifier: MIT
#include "RuntimeMacros.h"

using namespace Qt::StringLiterals;

QStringList runtimeMacros(QStringView option)
{
    QStringList result{u"_MT=1"_s};
    if (option.startsWith("MD"_L1)) {
        result += u"_DLL=1"_s;
    }
    if (option.endsWith(u'd')) {
        result += u"_DEBUG=1"_s;
    }
    return result;
}

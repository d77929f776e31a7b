// SPDX-License-Identifier: MIT
#include "personality/ProductNames.h"

using namespace Qt::StringLiterals;

const ProductNames& ProductNames::of(bool isC)
{
    static const ProductNames c{u"Orv C"_s,         u"orvc.exe"_s, u"ORVC"_s,    u"ORVCBIN"_s, u"ORVCPERSONALITIES"_s,
                                u"ORVCHELPFILES"_s, u"orvc.msg"_s, u"orvc.usr"_s};
    static const ProductNames cpp{u"Orv C++"_s,    u"orvcpp.exe"_s,          u"ORVCPP"_s,
                                  u"ORVCPPBIN"_s,  u"ORVCPPPERSONALITIES"_s, u"ORVCPPHELPFILES"_s,
                                  u"orvcpp.msg"_s, u"orvcpp.usr"_s};
    return isC ? c : cpp;
}

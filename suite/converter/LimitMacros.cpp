// SPDX-License-Identifier: MIT
#include "LimitMacros.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Limit
{
    QLatin1StringView type;
    QLatin1StringView unsignedType;
    /// What makes a number unsigned.
    QLatin1StringView suffix;
    /// The compiler's own macro for the largest value, and that value where it has none, as on Windows.
    QLatin1StringView macro;
    QLatin1StringView usual;
};

constexpr std::array limits = {
    Limit{"SCHAR"_L1, "UCHAR"_L1, ""_L1, "__SCHAR_MAX__"_L1, "127"_L1},
    Limit{"SHRT"_L1, "USHRT"_L1, ""_L1, "__SHRT_MAX__"_L1, "32767"_L1},
    Limit{"INT"_L1, "UINT"_L1, "U"_L1, "__INT_MAX__"_L1, "2147483647"_L1},
    Limit{"LONG"_L1, "ULONG"_L1, "UL"_L1, "__LONG_MAX__"_L1, "2147483647L"_L1},
    Limit{"LLONG"_L1, "ULLONG"_L1, "ULL"_L1, "__LONG_LONG_MAX__"_L1, "9223372036854775807LL"_L1},
};

QString valueOf(QLatin1StringView macro, const QStringList& predefined, QLatin1StringView usual)
{
    for (const QString& define : predefined) {
        if (define.size() > macro.size() && define.startsWith(macro) && define[macro.size()] == u'=') {
            return define.sliced(macro.size() + 1);
        }
    }
    return usual;
}

/// As one number: the analyser's preprocessor calculates with signed numbers only.
QString largestUnsigned(const QString& largest, QLatin1StringView suffix)
{
    qsizetype end = largest.size();
    while (end > 0 && (largest[end - 1] == u'L' || largest[end - 1] == u'U')) {
        --end;
    }
    const qulonglong value = largest.first(end).toULongLong(nullptr, 0) * 2 + 1;
    return u"0x"_s + QString::number(value, 16) + suffix;
}

} // namespace

QStringList limitMacros(const QStringList& predefined)
{
    QStringList result{u"CHAR_BIT="_s + valueOf("__CHAR_BIT__"_L1, predefined, "8"_L1)};
    for (const Limit& limit : limits) {
        const QString most = valueOf(limit.macro, predefined, limit.usual);
        result += limit.type + u"_MAX="_s + most;
        result += limit.type + u"_MIN=(-%1 - 1)"_s.arg(most);
        result += limit.unsignedType + u"_MAX="_s + largestUnsigned(most, limit.suffix);
    }
    return result;
}

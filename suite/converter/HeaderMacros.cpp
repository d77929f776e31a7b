// SPDX-License-Identifier: MIT
#include "HeaderMacros.h"

#include <QHash>

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

/// Types of <stdint.h> whose largest value compilers predefine.
constexpr std::array integers = {
    "INT8"_L1,   "INT16"_L1,  "INT32"_L1,  "INT64"_L1,   "INTPTR"_L1,  "INTMAX"_L1, "UINT8"_L1,
    "UINT16"_L1, "UINT32"_L1, "UINT64"_L1, "UINTPTR"_L1, "UINTMAX"_L1, "SIZE"_L1,   "PTRDIFF"_L1,
};

using Macros = QHash<QString, QString>;

Macros valuesOf(const QStringList& predefined)
{
    Macros result;
    for (const QString& define : predefined) {
        result.insert(define.section(u'=', 0, 0), define.section(u'=', 1));
    }
    return result;
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

QStringList integerMacros(const Macros& macros)
{
    QStringList result;
    for (const QLatin1StringView type : integers) {
        const QString most = macros.value(u"__"_s + type + u"_MAX__"_s);
        if (!most.isEmpty()) {
            result += type + u"_MAX="_s + most;
        } else if (type == "UINTPTR"_L1 || type == "SIZE"_L1) {
            const bool is64 = macros.contains(u"_WIN64"_s) || macros.value(u"__SIZEOF_POINTER__"_s) == "8"_L1;
            result += type + u"_MAX="_s + (is64 ? u"0xffffffffffffffffULL"_s : u"0xffffffffU"_s);
        }
    }
    return result;
}

/// The C library's <stdlib.h> brings these along there.
QStringList byteOrderMacros(const Macros& macros)
{
    const QString order = macros.value(u"__BYTE_ORDER__"_s);
    if (!macros.contains(u"__linux__"_s) || order.isEmpty()) {
        return {};
    }
    const bool isBig = order == "__ORDER_BIG_ENDIAN__"_L1 || order == "4321"_L1;
    QStringList result;
    for (const auto& prefix : {u""_s, u"__"_s}) {
        result += {prefix + u"LITTLE_ENDIAN=1234"_s, prefix + u"BIG_ENDIAN=4321"_s, prefix + u"PDP_ENDIAN=3412"_s,
                   prefix + u"BYTE_ORDER="_s + (isBig ? u"4321"_s : u"1234"_s)};
    }
    return result;
}

} // namespace

QStringList headerMacros(const QStringList& predefined)
{
    const Macros macros = valuesOf(predefined);
    QStringList result{u"CHAR_BIT="_s + macros.value(u"__CHAR_BIT__"_s, u"8"_s)};
    for (const Limit& limit : limits) {
        const QString most = macros.value(limit.macro, limit.usual);
        result += limit.type + u"_MAX="_s + most;
        result += limit.type + u"_MIN=(-%1 - 1)"_s.arg(most);
        result += limit.unsignedType + u"_MAX="_s + largestUnsigned(most, limit.suffix);
    }
    return result + integerMacros(macros) + byteOrderMacros(macros);
}

// SPDX-License-Identifier: MIT
#include "TargetName.h"

using namespace Qt::StringLiterals;

QString targetOfOutput(QString output)
{
    output.replace(u'\\', u'/');
    const auto mark = "CMakeFiles/"_L1;
    if (const qsizetype begin = output.lastIndexOf(mark); begin >= 0) {
        const qsizetype start = begin + mark.size();
        const qsizetype end = output.indexOf(".dir/"_L1, start);
        return end > start ? output.sliced(start, end - start) : QString();
    }
    const qsizetype end = output.lastIndexOf(".p/"_L1);
    return end > 0 ? output.first(end).section(u'/', -1) : QString();
}

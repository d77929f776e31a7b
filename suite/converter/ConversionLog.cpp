// SPDX-License-Identifier: MIT
#include "ConversionLog.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostEntries = 10000;
constexpr qsizetype mostPlaces = 100;
constexpr qsizetype longestText = 1000;

} // namespace

int ConversionLog::number(const QString& text)
{
    const QString kept = all.size() < mostEntries ? text.left(longestText) : u"further options"_s;
    const auto known = numbers.constFind(kept);
    if (known != numbers.cend()) {
        return *known;
    }
    numbers.insert(kept, int(all.size()));
    all += Entry{.text = kept, .count = 0, .places = {}};
    return int(all.size()) - 1;
}

void ConversionLog::count(int number, const QString& place)
{
    Entry& entry = all[number];
    ++entry.count;
    if (entry.places.size() < mostPlaces) {
        entry.places += place;
    }
}

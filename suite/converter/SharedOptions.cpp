// SPDX-License-Identifier: MIT
#include "SharedOptions.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

// Kinds of one group form one sequence.
int sequenceOf(OptionKind kind)
{
    switch (kind) {
    case OptionKind::Target:
        return 1;
    case OptionKind::QuoteFolder:
    case OptionKind::Folder:
    case OptionKind::SystemFolder:
    case OptionKind::AfterFolder:
        return 2;
    case OptionKind::MacroFile:
        return 3;
    case OptionKind::ForcedInclude:
        return 4;
    default:
        return 0;
    }
}

OptionPool::Set sequence(const OptionPool& pool, const OptionPool::Set& set, int wanted)
{
    OptionPool::Set result;
    for (const quint32 option : set) {
        if (sequenceOf(pool.option(option).kind) == wanted) {
            result += option;
        }
    }
    return result;
}

void keepCommonStart(OptionPool::Set& common, const OptionPool::Set& other)
{
    const auto end = std::mismatch(common.cbegin(), common.cend(), other.cbegin(), other.cend()).first;
    common.erase(end, common.cend());
}

} // namespace

OptionPool::Set SharedOptions::of(const OptionPool& pool, const QList<int>& sets)
{
    OptionPool::Set result;
    if (sets.isEmpty()) {
        return result;
    }
    for (int kind = 0; kind <= 4; ++kind) {
        OptionPool::Set common = sequence(pool, pool.set(sets.first()), kind);
        for (const int number : sets.mid(1)) {
            if (common.isEmpty()) {
                break;
            }
            const OptionPool::Set other = sequence(pool, pool.set(number), kind);
            if (kind == 0) {
                const QSet<quint32> members(other.begin(), other.end());
                common.removeIf([&](quint32 option) { return !members.contains(option); });
            } else {
                keepCommonStart(common, other);
            }
        }
        result += common;
    }
    std::ranges::stable_sort(result, {}, [&](quint32 option) { return pool.option(option).kind; });
    return result;
}

OptionPool::Set SharedOptions::rest(const OptionPool::Set& set, const OptionPool::Set& shared)
{
    // An include folder that comes twice is taken out where it stands first.
    QHash<quint32, int> left;
    for (const quint32 option : shared) {
        ++left[option];
    }
    OptionPool::Set result;
    for (const quint32 option : set) {
        int& count = left[option];
        if (count > 0) {
            --count;
        } else {
            result += option;
        }
    }
    return result;
}

// SPDX-License-Identifier: MIT
#include "OptionPool.h"

#include <algorithm>

int OptionPool::setOf(QList<Option> given)
{
    std::ranges::stable_sort(given, {}, &Option::kind);
    Set set;
    set.reserve(given.size());
    for (const Option& option : std::as_const(given)) {
        set += number(option);
    }
    const auto known = setNumbers.constFind(set);
    if (known != setNumbers.cend()) {
        return *known;
    }
    sets += set;
    setNumbers.insert(set, int(sets.size()) - 1);
    return int(sets.size()) - 1;
}

QList<Option> OptionPool::optionsOf(int number) const
{
    QList<Option> result;
    for (const quint32 option : sets[number]) {
        result += options[option];
    }
    return result;
}

quint32 OptionPool::number(const Option& option)
{
    const auto known = optionNumbers.constFind(option);
    if (known != optionNumbers.cend()) {
        return *known;
    }
    options += option;
    optionNumbers.insert(option, quint32(options.size() - 1));
    return quint32(options.size() - 1);
}

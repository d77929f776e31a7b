// SPDX-License-Identifier: MIT
#pragma once

#include "Option.h"

#include <QHash>
#include <QList>

/// Keeps every option and every set of options once, by number. A set is ordered by the kind of its options; within a
/// kind the order is the command's.
class OptionPool
{
public:
    using Set = QList<quint32>;

    /// The number of a set that holds these options.
    int setOf(QList<Option> options);

    const Option& option(quint32 number) const { return options[number]; }
    const Set& set(int number) const { return sets[number]; }
    QList<Option> optionsOf(int number) const;

private:
    quint32 number(const Option& option);

    QList<Option> options;
    QHash<Option, quint32> optionNumbers;
    QList<Set> sets;
    QHash<Set, int> setNumbers;
};

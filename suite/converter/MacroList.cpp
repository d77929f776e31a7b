// SPDX-License-Identifier: MIT
#include "MacroList.h"

namespace {

QString nameOf(const QString& define)
{
    const auto ends = [](QChar character) { return character == u'=' || character == u'('; };
    return define.first(std::find_if(define.begin(), define.end(), ends) - define.begin());
}

} // namespace

void MacroList::define(const QString& text)
{
    put(nameOf(text), {OptionKind::Define, text});
}

void MacroList::undefine(const QString& name)
{
    put(name, {OptionKind::Undefine, name});
}

void MacroList::defineIfUnknown(const QString& text)
{
    if (!places.contains(nameOf(text))) {
        define(text);
    }
}

void MacroList::put(const QString& name, Option option)
{
    if (const auto old = places.constFind(name); old != places.cend()) {
        entries[*old].text.clear();
    }
    places.insert(name, entries.size());
    entries += std::move(option);
}

void MacroList::appendTo(QList<Option>& options) const
{
    for (const Option& entry : entries) {
        if (!entry.text.isEmpty()) {
            options += entry;
        }
    }
}

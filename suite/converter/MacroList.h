// SPDX-License-Identifier: MIT
#pragma once

#include "Option.h"

#include <QHash>
#include <QList>

/// Defines and undefines in the order of a command, of which the last of a name holds.
class MacroList
{
public:
    /// NAME, NAME=VALUE or NAME(ARGUMENTS)=VALUE.
    void define(const QString& text);
    void undefine(const QString& name);
    /// The same, unless the command itself has said something about the name.
    void defineIfUnknown(const QString& text);

    void appendTo(QList<Option>& options) const;

private:
    void put(const QString& name, Option option);

    QList<Option> entries;
    QHash<QString, qsizetype> places;
};

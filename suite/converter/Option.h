// SPDX-License-Identifier: MIT
#pragma once

#include <QHashFunctions>
#include <QString>

/// In the order in which an options file lists them.
enum class OptionKind : quint8 {
    Standard,
    Language,
    Target,
    Define,
    Undefine,
    QuoteFolder,
    Folder,
    SystemFolder,
    AfterFolder,
    MacroFile,
    ForcedInclude,
};

/// One thing that a build says about a source.
struct Option
{
    OptionKind kind;
    /// NAME, NAME=VALUE, an absolute path, or what the kind calls for.
    QString text;

    friend bool operator==(const Option&, const Option&) = default;
    friend size_t qHash(const Option& option, size_t seed = 0)
    {
        return qHashMulti(seed, int(option.kind), option.text);
    }
};

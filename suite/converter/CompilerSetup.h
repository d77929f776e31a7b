// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerName.h"

#include <QHashFunctions>
#include <QStringList>

/// A compiler with what decides on the macros that it predefines.
struct CompilerSetup
{
    CompilerName::Family family = CompilerName::Family::Other;
    /// As the command names it.
    QString program;
    bool isC = false;
    bool windows = false;
    /// As -std= names it; empty for the compiler's own.
    QString standard;
    /// Options that shape the target, each in one piece.
    QStringList target;

    friend bool operator==(const CompilerSetup&, const CompilerSetup&) = default;
    friend size_t qHash(const CompilerSetup& setup, size_t seed = 0)
    {
        return qHashMulti(seed, setup.program, setup.isC, setup.standard, setup.target);
    }
};

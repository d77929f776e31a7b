// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerSetup.h"
#include "ConversionLog.h"
#include "OptionPool.h"
#include "SourceLanguage.h"

#include <QList>
#include <QStringList>

/// How some sources are compiled; many share one record.
struct SourceSettings
{
    /// A set of the pool.
    int options = 0;
    /// A compiler of the list; -1 when none is known.
    int compiler = -1;
    SourceLanguage language = SourceLanguage::Unknown;
    /// Entries of the log.
    QList<int> problems;
};

struct SourceUnit
{
    /// Absolute and cleaned.
    QString path;
    int settings;
    /// A target of the list; 0 is none.
    int target;
};

/// What a build description holds, in its order. Options, compilers and targets are kept once.
struct Sources
{
    /// The file that the commands come from, absolute; empty when there is none.
    QString description;
    OptionPool pool;
    QList<CompilerSetup> compilers;
    QList<SourceSettings> settings;
    QStringList targets{QString()};
    QList<SourceUnit> units;
    ConversionLog log;

    const SourceSettings& settingsOf(const SourceUnit& unit) const { return settings[unit.settings]; }
};

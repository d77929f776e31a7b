// SPDX-License-Identifier: MIT
#pragma once

#include "Sources.h"

#include <QMap>

struct Arguments;

/// What of a build description becomes part of the project, and what does not.
struct ProjectSources
{
    /// Units of the sources, in their order.
    QList<qsizetype> units;
    QString commonFolder;
    qsizetype duplicates = 0;
    qsizetype otherLanguage = 0;
    qsizetype leftOut = 0;
    QMap<SourceLanguage, qsizetype> noSources;
    qsizetype missing = 0;
    QString firstMissing;

    /// Throws Failure when nothing is left.
    static ProjectSources choose(const Sources& sources, const Arguments& arguments);
};

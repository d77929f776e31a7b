// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One source file with the options it is compiled with.
struct SourceUnit
{
    /// Absolute and cleaned.
    QString path;
    QStringList includeFolders;
    /// NAME or NAME=VALUE.
    QStringList defines;
};

using SourceUnits = QList<SourceUnit>;

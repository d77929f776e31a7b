// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The folders that %I%, %ORVC% and %ORVCPP% stand for.
struct Places
{
    QString installPath;
    QString cInstallDir;
    QString cppInstallDir;
};

/// Replaces the first kind of placeholder that the text contains, in the order %I%, %ORVC%, %ORVCPP%, %R% (a value of
/// a settings store), %NAME% (an environment variable, the first one only). Other kinds in the text stay.
/// environment holds NAME=value texts.
QString ExpandPlaceholders(const QString& text, const Places& places, const QStringList& environment);

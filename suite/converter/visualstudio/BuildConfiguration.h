// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class Notices;

/// "Debug" and "x64": what a solution or a project is built as.
struct BuildConfiguration
{
    QString configuration = {};
    QString platform = {};

    QString text() const { return configuration + u'|' + platform; }
    /// From "Debug|x64"; the platform is empty where there is no bar.
    static BuildConfiguration fromText(const QString& text);

    /// The one of these that is wanted, without regard to case; where its configuration or platform is empty, the first
    /// that fits. Throws Failure that lists them when none fits; the file is named there.
    static BuildConfiguration choose(const QList<BuildConfiguration>& all, const BuildConfiguration& wanted,
                                     const QString& file);
};

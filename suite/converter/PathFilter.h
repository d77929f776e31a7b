// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRegularExpression>
#include <QStringList>

/// Patterns of what is to be left out. Without a slash one is for names of files and folders anywhere; with one for a
/// piece of the path, as deps/*, or for all of it when it is absolute. What matches a folder matches all in it. "*" and
/// "?" stop at a slash, "**" does not.
class PathFilter
{
public:
    explicit PathFilter(const QStringList& patterns);

    bool isEmpty() const { return everywhere.isEmpty() && absolute.isEmpty(); }
    /// The path is absolute; only what lies below the base is looked at, except by absolute patterns.
    bool matches(const QString& path, const QString& base) const;

private:
    QList<QRegularExpression> everywhere;
    QList<QRegularExpression> absolute;
};

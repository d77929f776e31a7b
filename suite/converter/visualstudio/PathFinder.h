// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <utility>

/// Finds files by names as Windows writes them: backslashes, and letters of either case.
class PathFinder
{
public:
    /// Absolute, cleaned and with "/"; relative names count from the folder. The name on the disk where there is one
    /// that differs by case only, else as it was written. A name with a drive letter stays as it is elsewhere.
    QString find(const QString& folder, const QString& name);

private:
    QString look(const QString& folder, const QString& name);
    QString inFolder(const QString& folder, const QString& name);

    QHash<std::pair<QString, QString>, QString> known;
    /// The names in a folder by their lower-case forms.
    QHash<QString, QHash<QString, QString>> listings;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The analyser project that the suite worked on last.
class Project
{
public:
    /// Remembers the project file's path; true when it names a file.
    bool load(const QString& fileName);

    QString projectFile;
};

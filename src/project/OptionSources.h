// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// What the option and list files of a project are made with.
struct OptionSources
{
    /// Makes an empty temporary file with this suffix and gives its name; empty when none can be made.
    std::function<QString(const QString& suffix)> temporaryFile = {};
    /// Option files that are added to every project's own.
    QStringList standardFiles = {};
};

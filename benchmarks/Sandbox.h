// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

/// A folder of its own for everything a benchmark could leave behind; it goes with the benchmark. Made before the
/// application, which reads where the settings lie.
struct Sandbox
{
    Sandbox()
    {
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "TMPDIR"}) {
            qputenv(name, folder.path().toLocal8Bit());
        }
    }

    QString path(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
};

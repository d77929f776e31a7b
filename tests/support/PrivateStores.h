// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Keeps a test away from the settings and temporary folder of whoever runs it, where XDG_CONFIG_HOME and TMPDIR do
/// not: on Windows both hives of the registry lead to keys that go with the run.
class PrivateStores
{
public:
    explicit PrivateStores(const QString& home);
    // NOLINTNEXTLINE(performance-trivially-destructible): on Windows it has something to do.
    ~PrivateStores();
    Q_DISABLE_COPY_MOVE(PrivateStores)
};

// SPDX-License-Identifier: MIT
#pragma once

#include "Installation.h"

/// The open suite as its script lays it out on Unix, and as its installer does on Windows.
class InstalledSuite : public Installation
{
public:
    InstalledSuite();

    /// What a user types to start the wizard, or with "-batch" a conversion.
    QString program() const;
    /// A conversion without a window in the folder "work"; the command is divided as a shell does.
    ProgramResult run(const QString& command) const;
};

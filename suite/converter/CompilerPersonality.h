// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerSetup.h"

#include <QStringList>

/// What is known of a compiler: what it predefines and where its own headers lie.
struct CompilerPersonality
{
    CompilerSetup setup;
    /// The program that answered; empty when the built-in minimum had to do.
    QString program;
    /// Why it did not answer.
    QString reason;
    /// NAME=VALUE or NAME(ARGUMENTS)=VALUE.
    QStringList macros;
    QStringList folders;

    /// The lines of an options file.
    QString text() const;
    /// A name for the file, from the compiler and what it was asked for.
    QString label() const;
};

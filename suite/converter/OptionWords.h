// SPDX-License-Identifier: MIT
#pragma once

#include "BuildCommand.h"
#include "CompilerName.h"

/// The options of a command in one flat list: without launchers and the compiler, @files read, and options that are
/// handed through to a part of the compiler in the place of their wrapping.
struct OptionWords
{
    explicit OptionWords(const BuildCommand& command);

    QStringList words;
    QString compiler;
    CompilerName::Family family = CompilerName::Family::Other;
    QStringList problems;

private:
    void unwrap(const QStringList& wrapped);
};

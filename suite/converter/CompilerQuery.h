// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerPersonality.h"

#include <QList>

/// Asks compilers what they predefine and where their headers lie, several at a time, each for a few seconds at most.
///
/// A program is run only when its name is that of a compiler that answers, and when it is either found in PATH or named
/// by an absolute path outside the folders of the build description: what a description brings along is never run. It
/// gets -E -dM -v, the language, the standard and options that shape the target; its standard input is empty.
class CompilerQuery
{
public:
    /// Nothing below these folders is run.
    explicit CompilerQuery(QStringList distrustedFolders);

    /// One answer for each setup, in their order.
    QList<CompilerPersonality> ask(const QList<CompilerSetup>& setups) const;

private:
    /// What can be run for a setup; empty, with the reason, for nothing.
    QString runnable(const CompilerSetup& setup, QString& reason) const;

    QStringList distrusted;
};

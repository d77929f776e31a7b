// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerSetup.h"
#include "Option.h"
#include "SourceLanguage.h"

#include <QList>

/// What a command says about its source.
struct ParsedCommand
{
    QList<Option> options;
    CompilerSetup compiler;
    SourceLanguage language = SourceLanguage::Unknown;
    /// Where the object goes, as written; empty when the command does not say.
    QString output;
    /// What an options file can not say, each as one line.
    QStringList problems;
};

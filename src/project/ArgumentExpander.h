// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"

#include <QString>
#include <QStringList>

struct OptionSources;

/// What the placeholders of a launcher's arguments stand for. An empty extraOptionFile adds nothing.
struct ArgumentValues
{
    QString analyser;
    QString projectFile;
    QString optionFile;
    QString extraOptionFile;
    QString listFile;
};

/// Replaces the placeholders among a launcher's arguments: only whole arguments, letter case matters.
class ArgumentExpander
{
public:
    ArgumentExpander(const ArgumentValues& standFor, const OptionSources& files);

    /// The problem is a temporary file that could not be made.
    Result<QStringList> expand(const QStringList& arguments);

private:
    QStringList expand(const QString& item);
    QString newFile();

    const ArgumentValues values;
    const OptionSources& sources;
    QString problem;
};

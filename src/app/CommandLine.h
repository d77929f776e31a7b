// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

struct WizardState;

/// The command line as far as it can be judged before there is a window.
namespace CommandLine {

/// True when -ver or -help ends the program, so that no display is needed.
bool endsProgram(const QStringList& arguments);

/// The project file for which -tools opens the tools' page, if it is given; an empty name when nothing follows it.
std::optional<QString> toolsProject(const QStringList& arguments);

/// Applies -c, -cpp, -prj, -mp, -ap and -cp to the state. Every entry is examined, also one that is a value.
void preset(const QStringList& arguments, WizardState& state);

/// What -c and -cpp, and -prj, do to it.
void presetAnalyser(bool isC, WizardState& state);
void presetProject(const QString& projectFile, WizardState& state);

} // namespace CommandLine

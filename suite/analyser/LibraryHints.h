// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

struct AnalysisOptions;

/// What the options of a source tell about the libraries it uses and the machine it is compiled for.
namespace LibraryHints {

/// Names of cppcheck's library configurations: those that the options name, then those that they show.
QStringList libraries(const AnalysisOptions& options);

/// Names of those that a source asks for by what it includes: of frameworks for tests, whose macros make functions that
/// can not be read without them. They often lie in the system's own folders, which no option shows.
QStringList testFrameworks(const QString& source);

/// Macros that Qt's own headers would define, which are not read: the name of the system, moc's revision, without which
/// what it writes ends at an #error, and one that the analyser's configuration of Qt has not heard of.
QStringList defines(const AnalysisOptions& options);

/// cppcheck's name of the platform; empty when nothing tells, which means the machine's own.
QString platform(const AnalysisOptions& options);

} // namespace LibraryHints

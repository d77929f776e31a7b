// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

struct AnalysisOptions;

/// What the options of a source tell about the libraries it uses and the machine it is compiled for.
namespace LibraryHints {

/// Names of cppcheck's library configurations: those that the options name, then those that they show.
QStringList libraries(const AnalysisOptions& options);

/// Macros of a library's own headers, which are not read, that sources stop without: those that moc writes end at an
/// #error where the headers of Qt have not told its revision.
QStringList defines(const AnalysisOptions& options);

/// cppcheck's name of the platform; empty when nothing tells, which means the machine's own.
QString platform(const AnalysisOptions& options);

} // namespace LibraryHints

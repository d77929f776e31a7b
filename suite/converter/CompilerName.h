// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What the words before the options of a command tell: launchers, the compiler and how it is spoken to.
namespace CompilerName {

enum class Family { Gnu, Clang, ClangCl, Cl, Other };

/// Where the compiler stands in a command: behind ccache, distcc, libtool and the like with their own options.
qsizetype find(const QStringList& words);

/// Told from the program's name, whatever cross prefix and version it has. Only the names of compilers that answer
/// to -E -dM give Gnu or Clang.
Family family(const QString& program);

/// Whether the program takes every source for C++, as g++ does, also one that ends in .c.
bool isForCppOnly(const QString& program);

/// Whether options begin with a slash.
bool hasSlashOptions(Family family);

} // namespace CompilerName

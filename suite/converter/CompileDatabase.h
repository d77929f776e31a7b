// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SourceCollector;

/// Compilation databases: a JSON array of objects with "directory", "file", "output" and "command" or "arguments".
namespace CompileDatabase {

/// Reads one without holding it in memory. Throws Failure, with the line and column, for what is none.
void read(const QString& fileName, SourceCollector& collector);

/// The database that a file or folder stands for: itself, or the compile_commands.json in it or one level below, in a
/// build folder first; others holds what could have been meant, too. Throws Failure when there is none.
QString find(const QString& fileOrFolder, QStringList& others);

} // namespace CompileDatabase

// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"

#include <QString>
#include <QStringList>

/// Batch files of Windows, which its command interpreter runs: what an argument holds must reach them as text, and not
/// be a command of its own.
namespace BatchFile {

/// By the suffix: .bat or .cmd, in any letter case.
bool isOne(const QString& program);
/// All that follows the interpreter's name so that it runs the batch file with these arguments; fails for a line break
/// or a NUL, which no quotes hold.
Result<QString> interpreterArguments(const QString& program, const QStringList& arguments);

} // namespace BatchFile

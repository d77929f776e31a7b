// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What -batch does, by its arguments.
namespace BatchMode {

enum ExitStatus { Good = 0, Failed = 1, WrongArguments = 2 };

/// Does what the command line says, under an event loop of the application's and with the registry loaded; gives the
/// exit status.
int execute(const QStringList& arguments);

/// Prints the usage, or another text, to standard output; gives the exit status.
int help();
int print(const QString& text);

} // namespace BatchMode

// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What a program needs to speak with the console, or whatever else its standard channels lead to. Before the
/// application object.
namespace Console {

/// Windows: a program with windows gets the console it was started from, and what is printed there is taken for UTF-8
/// until the program ends. Messages of Qt go to the standard error channel, as they do elsewhere.
void open();

/// The command line's arguments with the program's name, none of their letters lost.
QStringList arguments(int argc, char** argv);

} // namespace Console

// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What a program needs to speak with the console, or whatever else its standard channels lead to. Before the
/// application object.
namespace Console {

/// Windows: a program with windows gets the console it was started from, and what is printed there is taken for UTF-8
/// until the program ends. Messages of Qt go to the standard error channel, as they do elsewhere.
void open();

/// Windows: lets Ctrl+C and the end of the console reach a program with windows, which else has no part in it. Its
/// channels lead on to where they led.
void hearKeys();

/// The command line's arguments with the program's name, none of their letters lost.
QStringList arguments(int argc, char** argv);

/// How wide the terminal is that standard output leads to; 0 where there is none, or one that can not go back in a
/// line.
int columns();
/// True when the standard error channel leads to a terminal, too.
bool hasErrorTerminal();

} // namespace Console

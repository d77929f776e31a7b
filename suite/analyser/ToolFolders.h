// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where cppcheck and Ninja are found.
namespace ToolFolders {

/// Windows: appends to this program's PATH the folders that installers choose and do not enter there, and the program's
/// own. Elsewhere packages install into PATH, and nothing is done.
void appendToPath();

/// What a user does to get such a program: a sentence for messages that miss it.
QString howToGet(const QString& package);

} // namespace ToolFolders

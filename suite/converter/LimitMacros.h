// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What <limits.h> makes of the macros that a compiler predefines. The analyser does not read the system's headers, and
/// many sources end at an #error where these are unknown.
QStringList limitMacros(const QStringList& predefined);

// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What <limits.h>, <stdint.h> and, where all programs of a system see it, <endian.h> make of the macros that a
/// compiler predefines. The analyser does not read the system's headers, and many sources end at an #error without
/// these.
QStringList headerMacros(const QStringList& predefined);

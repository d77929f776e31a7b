// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

struct CompilerSetup;

/// The least that a compiler of this name and target predefines, for a compiler that can not be asked.
QStringList builtinMacros(const CompilerSetup& setup);

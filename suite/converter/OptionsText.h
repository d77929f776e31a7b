// SPDX-License-Identifier: MIT
#pragma once

#include "Option.h"
#include "OptionPool.h"

#include <QString>

/// The lines of options files.
namespace OptionsText {

/// One line in which a file is read first; empty for none.
QString via(const QString& file);

/// The lines that say these options. Throws Failure for what no line can hold.
QString lines(const OptionPool& pool, const OptionPool::Set& set, bool forC);

/// A line "-d ..." for a macro.
QString define(const QString& text);

} // namespace OptionsText

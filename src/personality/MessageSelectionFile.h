// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"

#include <QStringList>

/// Writes an option file that cancels all earlier message settings and enables just these messages. Without messages or
/// a file name nothing is written. The problem is the system's reason why the file is not complete.
Result<void> writeMessageSelectionFile(const QStringList& messages, const QString& fileName);

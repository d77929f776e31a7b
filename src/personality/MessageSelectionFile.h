// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Writes an option file that cancels all earlier message settings and enables just these messages. Without messages or
/// a file name nothing is written. False when the file could not be written completely.
bool writeMessageSelectionFile(const QStringList& messages, const QString& fileName);

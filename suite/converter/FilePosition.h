// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where something stands in a text file. The file is read again for it, so that nobody has to count while all is well.
namespace FilePosition {

/// FILE:LINE:COLUMN, counted in bytes from 1.
QString columnOf(const QString& fileName, size_t offset);

} // namespace FilePosition

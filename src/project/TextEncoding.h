// SPDX-License-Identifier: MIT
#pragma once

#include <QStringConverter>

class QFile;

/// The one place that decides how project files, option files and list files are encoded.
namespace TextEncoding {

/// What is written: every analyser of the suite reads it, and no name is lost.
constexpr QStringConverter::Encoding written = QStringConverter::Utf8;

/// What an open file is to be read as: UTF-8, or where it is none the system's own encoding, or Latin-1 where that is
/// UTF-8 too. The file's position stays.
QStringConverter::Encoding of(QFile& file);

} // namespace TextEncoding

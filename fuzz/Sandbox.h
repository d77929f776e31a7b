// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// One call reads one input; defined once by each fuzz target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
/// Called before the first input.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

/// The temporary folder that all files of a fuzz target lie in; it is the current folder, and home and settings too.
namespace Sandbox {

/// The absolute path of a name in the folder.
QString path(const QString& name);
/// Gives a file these contents, with the folders above it, and returns its path.
QString write(const QString& name, const QByteArray& contents);

/// Ends the program with the reason, which the fuzzer counts as a find, unless the claim is true.
void require(bool claim, const char* reason);

/// The bytes of an input, not copied.
inline QByteArray bytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
}

} // namespace Sandbox

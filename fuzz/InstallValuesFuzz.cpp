// SPDX-License-Identifier: MIT
// The suite's install values, wendleTools.xml.
#include "app/StringValues.h"
#include "Sandbox.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray document = Sandbox::bytes(data, size);
    StringValues values;
    values.readDocument(document);
    Sandbox::require(values.zipFileExts.size() == 1 || values.zipFileExts == StringValues().zipFileExts,
                     "a list value that is neither the file's nor the default");
    const StringValues first = values;
    values.readDocument(document);
    Sandbox::require(first.helpFile == values.helpFile && first.tarFilename == values.tarFilename,
                     "reading twice gives another value");
    return 0;
}

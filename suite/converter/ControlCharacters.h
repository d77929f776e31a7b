// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

/// A tab and a line break also.
inline bool isControlCharacter(char character)
{
    return static_cast<unsigned char>(character) < 0x20;
}

/// Whether one is in the text.
inline bool holdsControlCharacter(QByteArrayView text)
{
    // A byte for the sum and no way out of the loop let the compiler look at many at once.
    unsigned char found = 0;
    for (const char character : text) {
        found |= static_cast<unsigned char>(isControlCharacter(character));
    }
    return found != 0;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdio>

/// Prints a line at once, as Console::open() has promised to a console.
inline void print(std::FILE* channel, const QString& text)
{
    std::fputs((text + u'\n').toUtf8().constData(), channel);
    std::fflush(channel);
}

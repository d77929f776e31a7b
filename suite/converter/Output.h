// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdio>

/// Prints a line at once.
inline void print(std::FILE* channel, const QString& text)
{
    std::fputs((text + u'\n').toLocal8Bit().constData(), channel);
    std::fflush(channel);
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What went wrong, on which file and what to do; ends the conversion without leaving a file.
struct Failure
{
    enum class Kind { Conversion = 1, Arguments = 2 };

    QString text;
    Kind kind = Kind::Conversion;
};

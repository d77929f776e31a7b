// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Why a tool can not do its work: what failed, on which file, what to do. Ends the tool with status 2.
struct Failure
{
    QString text;
};

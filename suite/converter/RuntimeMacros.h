// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What an option for the run-time library brings along: MT, MTd, MD, MDd or LDd.
QStringList runtimeMacros(QStringView option);

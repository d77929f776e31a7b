// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The -std= name of a language standard, whatever compiler it was written for.
QString standardName(const QString& value);

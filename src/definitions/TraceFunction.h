// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QString;

/// Tells the trace of this run what was read or set, when somebody asked for one.
using TraceFunction = std::function<void(const QString& label, const QString& value)>;

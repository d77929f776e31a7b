// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QString;

/// Turns a text of the definitions file into the text it stands for.
using TextExpander = std::function<QString(const QString&)>;

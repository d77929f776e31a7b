// SPDX-License-Identifier: MIT
#pragma once

struct Finding;

/// True when a "cppcheck-suppress" comment stands on the message's line, or alone on the lines before it, and names its
/// id. cppcheck looks at these comments itself while it reads a source; the check of the whole program reads none.
bool isSuppressedInline(const Finding& finding);

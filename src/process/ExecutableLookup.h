// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// Where a program is: as named, on PATH, in the suite's bin folder or in an analyser's. Empty when it is nowhere. The
/// folders also answer an empty name, with themselves.
QString FindExecutable(const QString& program);

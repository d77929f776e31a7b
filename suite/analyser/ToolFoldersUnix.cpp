// SPDX-License-Identifier: MIT
#include "ToolFolders.h"

void ToolFolders::appendToPath() {}

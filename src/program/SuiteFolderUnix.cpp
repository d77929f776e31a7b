// SPDX-License-Identifier: MIT
#include "program/SuiteFolder.h"

void SuiteFolder::offerAnalysers() {}

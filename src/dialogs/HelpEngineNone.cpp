// SPDX-License-Identifier: MIT
#include "dialogs/HelpEngine.h"

std::unique_ptr<HelpEngine> HelpEngine::open(const QString&)
{
    return nullptr;
}

// SPDX-License-Identifier: MIT
#include "process/ChildList.h"
#include "process/ChildProcess.h"
#include "process/StrayProcesses.h"

#include <QScopedValueRollback>

namespace {

constexpr int strayGraceMs = 500;

} // namespace

void ChildList::stopAll(int killMs)
{
    const QScopedValueRollback guard(closing, true);
    const QList<ChildProcess*> present = children;
    for (ChildProcess* child : present) {
        child->stop(killMs);
    }
    StrayProcesses::stop(strayGraceMs);
}

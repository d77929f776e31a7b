// SPDX-License-Identifier: MIT
#include "app/InstallerRecords.h"

#include <QString>

QString InstallerRecords::otherView(const QString&)
{
    return {};
}

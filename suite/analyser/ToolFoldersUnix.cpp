// SPDX-License-Identifier: MIT
#include "ToolFolders.h"

using namespace Qt::StringLiterals;

void ToolFolders::appendToPath() {}

QString ToolFolders::howToGet(const QString& package)
{
    return u"Install the package %1."_s.arg(package);
}

// SPDX-License-Identifier: MIT
#include "project/Project.h"

#include <QFileInfo>

bool Project::load(const QString& fileName)
{
    projectFile = fileName;
    return QFileInfo(fileName).isFile();
}

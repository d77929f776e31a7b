// SPDX-License-Identifier: MIT
#include "process/ExecutableLookup.h"
#include "app/AppRegistry.h"
#include "definitions/PathHelpers.h"

#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString FindExecutable(const QString& program)
{
    if (QFile::exists(program)) {
        return program;
    }
    // What the command `which` would print, without a process for every question.
    const QString onPath = QStandardPaths::findExecutable(program);
    if (!onPath.isEmpty()) {
        return onPath;
    }
    for (const QString& folder :
         {appRegistry->values.binArea, appRegistry->cInstallDir + u"/bin"_s, appRegistry->cppInstallDir + u"/bin"_s}) {
        const QString candidate = JoinPath(folder, program);
        if (QFile::exists(candidate)) {
            return candidate;
        }
    }
    return {};
}

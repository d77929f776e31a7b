// SPDX-License-Identifier: MIT
#include "process/ExecutableLookup.h"
#include "app/AppRegistry.h"
#include "definitions/PathHelpers.h"

#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

ExecutableAnswers* currentAnswers = nullptr;

QString lookUp(const QString& program)
{
    if (QFile::exists(program)) {
        return program;
    }
    // What the command `which` would print, without a process for every question.
    QString onPath = QStandardPaths::findExecutable(program);
    if (!onPath.isEmpty()) {
        return onPath;
    }
    for (const QString& folder :
         {appRegistry->values.binArea, appRegistry->cInstallDir + u"/bin"_s, appRegistry->cppInstallDir + u"/bin"_s}) {
        QString candidate = JoinPath(folder, program);
        if (QFile::exists(candidate)) {
            return candidate;
        }
    }
    return {};
}

} // namespace

QString FindExecutable(const QString& program)
{
    if (!currentAnswers) {
        return lookUp(program);
    }
    auto answer = currentAnswers->known.find(program);
    if (answer == currentAnswers->known.end()) {
        answer = currentAnswers->known.insert(program, lookUp(program));
    }
    return *answer;
}

ExecutableAnswers::ExecutableAnswers()
    : outer(currentAnswers)
{
    currentAnswers = this;
}

ExecutableAnswers::~ExecutableAnswers()
{
    currentAnswers = outer;
}

// SPDX-License-Identifier: MIT
#include "process/ExecutableLookup.h"
#include "definitions/PathHelpers.h"

#include <QFile>
#include <QStandardPaths>

#include <utility>

QString FindExecutable(const QString& program, const QStringList& folders)
{
    if (QFile::exists(program)) {
        return program;
    }
    // What the command `which` would print, without a process for every question.
    QString onPath = QStandardPaths::findExecutable(program);
    if (!onPath.isEmpty()) {
        return onPath;
    }
    for (const QString& folder : folders) {
        QString candidate = JoinPath(folder, program);
        if (QFile::exists(candidate)) {
            return candidate;
        }
        // Windows' own suffixes.
        candidate = QStandardPaths::findExecutable(program, {folder});
        if (!candidate.isEmpty()) {
            return candidate;
        }
    }
    return {};
}

ExecutableLookup::ExecutableLookup(QStringList searched)
    : folders(std::move(searched))
{
}

QString ExecutableLookup::find(const QString& program)
{
    auto answer = known.find(program);
    if (answer == known.end()) {
        answer = known.insert(program, FindExecutable(program, folders));
    }
    return *answer;
}

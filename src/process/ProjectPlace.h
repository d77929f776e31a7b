// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"

#include <QFile>
#include <QString>

#include <memory>

class QLockFile;

/// The place of a project file while a conversion makes it: this run's alone, and empty, with the old file aside
/// beside it until the new one is there.
class ProjectPlace
{
    Q_DISABLE_COPY(ProjectPlace)

public:
    ProjectPlace();
    /// Brings the old file back unless the new one was accepted.
    ~ProjectPlace();

    /// Locks the place and puts an old file aside. Fails, with everything as it was, when another run has it, when a
    /// folder stands there, or when the file can not be moved.
    Result<void> clear(const QString& projectFile);
    /// Whether what stands there now is a project file: a regular file, neither folder nor link nor device. A problem
    /// says what it is instead; it is empty when nothing is there.
    bool hasProject(QString& problem) const;
    /// The new file is the result; the old one is removed.
    void accept();
    /// The new file is the result, but nothing to rely on: the old one stays beside it. Gives its name; empty when
    /// there is no old one.
    QString acceptKeepingOld();
    /// Removes what was made and brings the old file, if any, back with its contents and time. True when one is back.
    Result<bool> bringBack();

private:
    Result<void> lock();
    Result<void> putAside();
    void removeMade() const;
    Result<bool> rename();
    Result<bool> rewrite();
    void release();

    QString projectFile;
    QString aside;
    /// Keeps the old file's contents even if somebody removes its folder.
    QFile old;
    std::unique_ptr<QLockFile> lockFile;
    bool hasOld = false;
};

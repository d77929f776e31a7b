// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A folder of the converter's own beside the project file: "NAME.cmake" for NAME.prj. What somebody else put there is
/// never touched.
class OwnFolder
{
public:
    /// Makes it unless it is there. Throws Failure when it can not be made or is not ours.
    OwnFolder(const QString& projectFile, const QString& ending);

    QString file(const QString& name) const { return path + u'/' + name; }
    QString name() const { return path; }
    /// Takes the folder away again if this run has made it.
    void discard() const;

private:
    QString path;
    bool isNew = false;
};

// SPDX-License-Identifier: MIT
#include "OwnFolder.h"
#include "../Failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

OwnFolder::OwnFolder(const QString& projectFile, const QString& ending)
{
    const QFileInfo project(projectFile);
    path = project.absolutePath() + u'/' + project.completeBaseName() + u'.' + ending;
    const QString mark = file(u"made-by-prjconv.txt"_s);
    if (QFileInfo::exists(path) && !QFileInfo::exists(mark)) {
        throw Failure{u"%1: is there already and was not made by this program. Move it away or choose another project "
                      "name."_s.arg(path)};
    }
    isNew = !QFileInfo::exists(path);
    QFile markFile(mark);
    if (!QDir().mkpath(path) || (isNew && !markFile.open(QIODevice::WriteOnly))) {
        throw Failure{u"%1: the folder can not be made. Choose a place where you may write."_s.arg(path)};
    }
    if (isNew) {
        markFile.write("This folder belongs to the conversion of the project beside it and can be removed.\n");
    }
}

void OwnFolder::discard() const
{
    if (isNew) {
        QDir(path).removeRecursively();
    }
}

// SPDX-License-Identifier: MIT
#include "app/OwnEnvironment.h"
#include "program/SuiteFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

void SuiteFolder::offerAnalysers()
{
    const QString suite = QFileInfo(QCoreApplication::applicationDirPath()).absolutePath();
    for (const auto& [variable, folder] :
         {std::pair{u"ORVCPATH"_s, u"/orvc"_s}, std::pair{u"ORVCPPPATH"_s, u"/orvcpp"_s}}) {
        if (!qEnvironmentVariableIsSet(variable.toLatin1().constData()) &&
            QFileInfo(suite + folder + u"/bin"_s).isDir()) {
            OwnEnvironment::set({variable + u'=' + QDir::toNativeSeparators(suite + folder)}, {});
        }
    }
}

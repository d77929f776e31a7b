// SPDX-License-Identifier: MIT
#include "program/SuiteFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdlib>
#include <string>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

void SuiteFolder::offerAnalysers()
{
    const QString suite = QFileInfo(QCoreApplication::applicationDirPath()).absolutePath();
    for (const auto& [variable, folder] :
         {std::pair{L"ORVCPATH", u"/orvc"_s}, std::pair{L"ORVCPPPATH", u"/orvcpp"_s}}) {
        if (!qEnvironmentVariableIsSet(QString::fromWCharArray(variable).toLatin1().constData()) &&
            QFileInfo(suite + folder + u"/bin"_s).isDir()) {
            const std::wstring path = QDir::toNativeSeparators(suite + folder).toStdWString();
            ::_wputenv_s(variable, path.c_str());
            ::SetEnvironmentVariableW(variable, path.c_str());
        }
    }
}

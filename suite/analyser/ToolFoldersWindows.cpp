// SPDX-License-Identifier: MIT
#include "ToolFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdlib>
#include <string>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

void ToolFolders::appendToPath()
{
    QStringList folders{QCoreApplication::applicationDirPath()};
    for (const char* place : {"ProgramFiles", "ProgramFiles(x86)", "LOCALAPPDATA"}) {
        const QString parent = qEnvironmentVariable(place);
        for (const QString& name : {u"/Cppcheck"_s, u"/Ninja"_s, u"/CMake/bin"_s, u"/Programs/Cppcheck"_s}) {
            if (!parent.isEmpty() && QFileInfo(parent + name).isDir()) {
                folders += parent + name;
            }
        }
    }
    QString path = qEnvironmentVariable("PATH");
    for (const QString& folder : folders) {
        path += QDir::listSeparator() + QDir::toNativeSeparators(folder);
    }
    const std::wstring wide = path.toStdWString();
    ::_wputenv_s(L"PATH", wide.c_str());
    ::SetEnvironmentVariableW(L"PATH", wide.c_str());
}

QString ToolFolders::howToGet(const QString& package)
{
    return u"Install %1; it is looked for in PATH and in the folders that installers choose."_s.arg(package);
}

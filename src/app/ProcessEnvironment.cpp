// SPDX-License-Identifier: MIT
#include "app/ProcessEnvironment.h"
#include "app/AppRegistry.h"
#include "app/OwnEnvironment.h"
#include "process/AnalyserEnvironment.h"
#include "process/Guardian.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

void SetProcessEnvironment(QProcess* process, bool analyserVariables)
{
    appRegistry->traceLog.write(u"SetProcessEnvironment: "_s, analyserVariables);
    const PersistedValues& values = appRegistry->values;
    const EnvironmentFolders folders{values.binArea,      values.installPath,       values.searchPaths,
                                     QDir::currentPath(), appRegistry->cInstallDir, appRegistry->cppInstallDir};
    const QStringList before = QProcess::systemEnvironment();
    const QStringList environment =
        analyserEnvironment(before, folders, analyserVariables, [](const QString& name, const QString& value) {
            appRegistry->traceLog.writeVariable(u"SetToEnvValue:"_s, name, value);
        });
    if (process) {
        QProcessEnvironment own = OwnEnvironment::forChild(environment, before);
        Guardian::mark(own);
        process->setProcessEnvironment(own);
    } else {
        OwnEnvironment::set(environment, before);
    }
}

// SPDX-License-Identifier: MIT
#include "launchers/StartProcess.h"
#include "app/AppRegistry.h"
#include "app/ProcessEnvironment.h"
#include "process/ChildProcess.h"
#include "process/ExecutableLookup.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int startWaitMs = 30000;

void traceStart(const QProcess& process, const QString& program, const QStringList& arguments)
{
    if (!appRegistry->traceLog.isOn()) {
        return;
    }
    appRegistry->Trace(u"Orv Process Environment=-----------------------------"_s);
    const QStringList environment = process.environment();
    for (const QString& entry : environment) {
        if (entry.startsWith("ORV"_L1)) {
            appRegistry->Trace(entry);
        }
    }
    appRegistry->Trace(u"-----------------------------------End Environment"_s);
    appRegistry->Trace(u'"' + program + u"\" "_s + arguments.join(u' '));
}

} // namespace

bool StartProcess(ChildProcess& process, const QString& program, const QStringList& arguments, bool runInProgramFolder,
                  bool analyserVariables)
{
    const QString found = FindExecutable(program, appRegistry->executableFolders());
    // The child changes its folder before it looks for the program.
    const QString path = found.isEmpty() ? program : QFileInfo(found).absoluteFilePath();
    SetProcessEnvironment(&process, analyserVariables);
    if (runInProgramFolder) {
        process.setWorkingDirectory(QFileInfo(path).absolutePath());
    }
    traceStart(process, path, arguments);
    process.launch(path, arguments);
    if (!process.waitForStarted(startWaitMs)) {
        process.kill();
        return false;
    }
    qDebug("STARTED");
    return true;
}

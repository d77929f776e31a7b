// SPDX-License-Identifier: MIT
#include "app/ProcessEnvironment.h"
#include "app/AppRegistry.h"
#include "process/AnalyserEnvironment.h"
#include "process/Guardian.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

// A variable of the user's that did not change keeps its bytes, whatever their encoding.
void putIntoOwnEnvironment(const QStringList& environment, const QStringList& before)
{
    for (const QString& entry : environment) {
        const qsizetype separator = entry.indexOf(u'=');
        if (separator <= 0 || before.contains(entry)) {
            continue;
        }
        const QByteArray name = entry.first(separator).toLocal8Bit();
        const QString old = qEnvironmentVariable(name.constData());
        const QString value = entry.sliced(separator + 1);
        // What was there before is kept as it is, and only what was added is encoded.
        const bool isExtended = !old.isEmpty() && value.startsWith(old);
        qputenv(name.constData(),
                isExtended ? qgetenv(name.constData()) + value.sliced(old.size()).toLocal8Bit() : value.toLocal8Bit());
    }
}

bool isFaithful(const QString& name)
{
    const QByteArray bytes = qgetenv(name.toLocal8Bit().constData());
    return QString::fromLocal8Bit(bytes).toLocal8Bit() == bytes;
}

// On Windows "Path" and "PATH" are one variable.
QString unified(const QString& name)
{
#ifdef Q_OS_WIN
    return name.toUpper();
#else
    return name;
#endif
}

// The system's text of a variable may not give its bytes back, so what did not change is left alone.
QProcessEnvironment withBytesOf(QProcessEnvironment inherited, const QStringList& environment,
                                const QStringList& before)
{
    QSet<QString> names;
    for (const QString& entry : environment) {
        const qsizetype separator = entry.indexOf(u'=');
        names.insert(unified(entry.first(qMax<qsizetype>(0, separator))));
        // A value that the text does not give back stays, as the program's own environment has it.
        if (separator > 0 && !before.contains(entry) && isFaithful(entry.first(separator))) {
            inherited.insert(entry.first(separator), entry.sliced(separator + 1));
        }
    }
    // A name that came out in another letter case.
    const QStringList inheritedNames = inherited.keys();
    for (const QString& name : inheritedNames) {
        if (!names.contains(unified(name))) {
            inherited.remove(name);
        }
    }
    return inherited;
}

} // namespace

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
        QProcessEnvironment own = withBytesOf(QProcessEnvironment::systemEnvironment(), environment, before);
        Guardian::mark(own);
        process->setProcessEnvironment(own);
    } else {
        putIntoOwnEnvironment(environment, before);
    }
}

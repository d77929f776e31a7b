// SPDX-License-Identifier: MIT
#include "process/ProcessEnvironment.h"
#include "app/AppRegistry.h"
#include "definitions/PathHelpers.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct AnalyserVariable
{
    const char16_t* c;
    const char16_t* cpp;
    const char16_t* folder;
    bool onPath = false;
};

constexpr std::array analyserRows = {
    AnalyserVariable{u"ORVCPATH", u"ORVCPPPATH", u""},
    AnalyserVariable{u"ORVCBIN", u"ORVCPPBIN", u"/bin", true},
    AnalyserVariable{u"ORVCHELP", u"ORVCPPHELP", u"/help"},
    AnalyserVariable{u"ORVCHELPFILES", u"ORVCPPHELPFILES", u"/help"},
    AnalyserVariable{u"ORVCTEMPFILES", u"ORVCPPTEMPFILES", u"/TEMP_FILES"},
    AnalyserVariable{u"ORVCTEMP", u"ORVCPPTEMP", u"/Temp"},
    AnalyserVariable{u"ORVCPERSONALITIES", u"ORVCPPPERSONALITIES", u"/personalities"},
    AnalyserVariable{u"ORVCDORVFILES", u"ORVCPPDORVFILES", u"/demographics"},
    AnalyserVariable{u"ORVCRESOURCESDIR", u"ORVCPPRESOURCESDIR", u"/app-default"},
};

void appendToPath(QStringList& environment, const QString& folder)
{
    const QString suffix = QDir::listSeparator() + QDir::toNativeSeparators(folder);
    for (QString& entry : environment) {
        if (entry.startsWith("PATH="_L1, Qt::CaseInsensitive)) {
            entry = "PATH="_L1 + entry.sliced(5) + suffix;
        }
    }
}

void setAnalyserVariables(QStringList& environment, const QString& folder, const char16_t* AnalyserVariable::*name,
                          const VariableTrace& trace)
{
    if (!QFile::exists(folder)) {
        return;
    }
    for (const AnalyserVariable& row : analyserRows) {
        const QString value = folder + QString::fromUtf16(row.folder);
        if (!QFile::exists(value)) {
            continue;
        }
        SetToEnvValue(environment, QString::fromUtf16(row.*name), value, trace);
        if (row.onPath) {
            appendToPath(environment, value);
        }
    }
}

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

// The system's text of a variable may not give its bytes back, so what did not change is left alone.
QProcessEnvironment withBytesOf(QProcessEnvironment inherited, const QStringList& environment,
                                const QStringList& before)
{
    QSet<QString> names;
    for (const QString& entry : environment) {
        const qsizetype separator = entry.indexOf(u'=');
        names.insert(entry.first(qMax<qsizetype>(0, separator)));
        // A value that the text does not give back stays, as the program's own environment has it.
        if (separator > 0 && !before.contains(entry) && isFaithful(entry.first(separator))) {
            inherited.insert(entry.first(separator), entry.sliced(separator + 1));
        }
    }
    // A name that came out in another letter case.
    const QStringList inheritedNames = inherited.keys();
    for (const QString& name : inheritedNames) {
        if (!names.contains(name)) {
            inherited.remove(name);
        }
    }
    return inherited;
}

void traceFlag(bool analyserVariables)
{
    if (appRegistry->traceStream) {
        appRegistry->Trace(u"SetProcessEnvironment: "_s, QString::number(int(analyserVariables)));
    } else if (appRegistry->traceOn) {
        qDebug() << "SetProcessEnvironment: " << analyserVariables;
    }
}

} // namespace

QStringList analyserEnvironment(QStringList environment, const EnvironmentFolders& folders, bool analyserVariables,
                                const VariableTrace& trace)
{
    appendToPath(environment, folders.binArea);
    for (const QString& folder : folders.searchPaths) {
        appendToPath(environment, folders.installPath + u'/' + folder);
    }
    appendToPath(environment, folders.currentFolder);
    if (analyserVariables) {
        setAnalyserVariables(environment, folders.cInstallDir, &AnalyserVariable::c, trace);
        setAnalyserVariables(environment, folders.cppInstallDir, &AnalyserVariable::cpp, trace);
    }
    return environment;
}

void SetToEnvValue(QStringList& environment, const QString& name, const QString& value, const VariableTrace& trace)
{
    const QString prefix = name + u'=';
    const QString entry = prefix + QDir::toNativeSeparators(value);
    if (environment.contains(entry)) {
        return;
    }
    if (trace) {
        trace(name, QDir::toNativeSeparators(value));
    }
    const auto old = std::ranges::find_if(
        environment, [&](const QString& text) { return text.startsWith(prefix, Qt::CaseInsensitive); });
    if (old != environment.end()) {
        *old = entry;
    } else {
        environment += entry;
    }
}

void SetProcessEnvironment(QProcess* process, bool analyserVariables)
{
    traceFlag(analyserVariables);
    const PersistedValues& values = appRegistry->values;
    const EnvironmentFolders folders{values.binArea,      values.installPath,       values.searchPaths,
                                     QDir::currentPath(), appRegistry->cInstallDir, appRegistry->cppInstallDir};
    const QStringList before = QProcess::systemEnvironment();
    const QStringList environment =
        analyserEnvironment(before, folders, analyserVariables, [](const QString& name, const QString& value) {
            appRegistry->Trace(u"SetToEnvValue:"_s, name + value);
        });
    if (process) {
        process->setProcessEnvironment(withBytesOf(QProcessEnvironment::systemEnvironment(), environment, before));
    } else {
        putIntoOwnEnvironment(environment, before);
    }
}

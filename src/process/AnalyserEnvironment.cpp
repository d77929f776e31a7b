// SPDX-License-Identifier: MIT
#include "process/AnalyserEnvironment.h"

#include <QDir>
#include <QFile>

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

// Where names have a letter case, a variable "path" is another one, and none of ours.
#ifdef Q_OS_WIN
constexpr auto nameCase = Qt::CaseInsensitive;
#else
constexpr auto nameCase = Qt::CaseSensitive;
#endif

void appendToPath(QStringList& environment, const QString& folder)
{
    const QString suffix = QDir::listSeparator() + QDir::toNativeSeparators(folder);
    for (QString& entry : environment) {
        if (entry.startsWith("PATH="_L1, nameCase)) {
            entry = "PATH="_L1 + entry.sliced(5) + suffix;
        }
    }
}

void setAnalyserVariables(QStringList& environment, const QString& folder, const char16_t* AnalyserVariable::*name,
                          const TraceFunction& trace)
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

} // namespace

QStringList analyserEnvironment(QStringList environment, const EnvironmentFolders& folders, bool analyserVariables,
                                const TraceFunction& trace)
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

void SetToEnvValue(QStringList& environment, const QString& name, const QString& value, const TraceFunction& trace)
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

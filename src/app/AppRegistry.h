// SPDX-License-Identifier: MIT
#pragma once

#include "app/PersistedValues.h"
#include "app/StringValues.h"
#include "app/TemporaryFiles.h"
#include "app/TraceLog.h"
#include "definitions/KOVRASettingsFile.h"
#include "process/ChildList.h"
#include "project/OptionSources.h"
#include "project/ProjectFacts.h"

#include <QList>
#include <QObject>
#include <QPoint>
#include <QSettings>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

class QCoreApplication;
class QDialog;

/// The state of one run and the services that every part shares: command line, trace, temporary files, settings
/// stores, definitions, shutdown. Created once, reached through appRegistry; only source files include this header.
class AppRegistry : public QObject
{
    Q_OBJECT

public:
    explicit AppRegistry(QObject* parent = nullptr);
    ~AppRegistry() override;

    /// Walks the command line and, unless an option ends the program, loads everything. False: stop without a window.
    bool Init(QCoreApplication* app, const QStringList& arguments, const QString& title, int width, int height,
              QString usage);
    /// The second stage: translations, values, installations, definitions, option lists, environment.
    void Load(QCoreApplication* app, const QStringList& arguments, int width, int height);
    /// Opens the per-program store and reads the window's geometry from it.
    void InitWindowSettings(const QString& name, int defaultWidth, int defaultHeight);
    void CreateSettings();
    void ReadRegistry();
    /// Stores the geometry and whatever the listeners add. Tells whether a store took it.
    bool WriteRegistry();
    /// Writes label and value to the trace file, or to the debug channel, when tracing is on.
    void Trace(const QString& label, const QString& value = {}) { traceLog.write(label, value); }
    /// A new empty file in the temporary folder, removed at shutdown; an empty text when none can be made.
    QString CreateTempFileName(const QString& suffix) { return tempFiles.create(suffix); }
    /// Stops children, removes temporary files, closes dialogs.
    void ShutDown();
    QString DefinitionsFileName() const;
    /// What the lower floors need to know of this run: how definitions are read, how a project is judged and told to a
    /// tool, and where programs are looked for besides PATH.
    KOVRASettingsFile::Context definitionsContext();
    ProjectFacts projectFacts() const;
    OptionSources optionSources();
    QStringList executableFolders() const;

    QPoint windowPos;
    QSize windowSize;
    QString applicationName;
    std::unique_ptr<QSettings> settings;
    PersistedValues values;
    StringValues installValues;
    KOVRASettingsFile definitions;
    /// Reads the launcher pages of the definitions; to be set before they are loaded.
    PageReader readPage;
    TemporaryFiles tempFiles;
    ChildList childProcesses;
    QList<QDialog*> openDialogs;
    QString exePath;
    QString cInstallDir;
    QString cppInstallDir;
    const QSettings::Scope settingsScope = QSettings::SystemScope;
    TraceLog traceLog;
    QString wendleToolsFileName = QStringLiteral("wendleTools.xml");
    QString definitionsFileName = QStringLiteral("settings.xml");
    /// -file named it.
    bool definitionsFileGiven = false;

Q_SIGNALS:
    void ReadRegistryValues(QSettings* settings);
    void WriteRegistryValues(QSettings* settings);
};

/// The one registry of the run.
extern AppRegistry* appRegistry;

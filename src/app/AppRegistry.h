// SPDX-License-Identifier: MIT
#pragma once

#include "app/PersistedValues.h"
#include "app/StringValues.h"
#include "definitions/KOVRASettingsFile.h"
#include "definitions/Placeholders.h"

#include <QList>
#include <QObject>
#include <QPoint>
#include <QSettings>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

class ChildProcess;
class QCoreApplication;
class QDialog;
class QFile;
class QTextStream;

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
    void Trace(const QString& label, const QString& value = {}) const;
    /// A new empty file in the temporary folder, removed at shutdown; an empty text when none can be made.
    QString CreateTempFileName(const QString& suffix);
    /// Stops children, removes temporary files, closes dialogs.
    void ShutDown();
    QString DefinitionsFileName() const;
    /// The folders that placeholders stand for.
    Places places() const;

    QPoint windowPos;
    QSize windowSize;
    QString applicationName;
    std::unique_ptr<QSettings> settings;
    PersistedValues values;
    StringValues installValues;
    KOVRASettingsFile definitions;
    /// Names of the temporary files, removed at shutdown.
    QStringList tempFiles;
    QList<ChildProcess*> childProcesses;
    QList<QDialog*> openDialogs;
    QString exePath;
    QString cInstallDir;
    QString cppInstallDir;
    QStringList cOnlyOptions;
    QStringList cppOnlyOptions;
    const QSettings::Scope settingsScope = QSettings::SystemScope;
    bool traceOn = false;
    /// Set while ShutDown stops the children: what ends then was ended by us.
    bool closingDown = false;
    std::unique_ptr<QTextStream> traceStream;
    QString wendleToolsFileName = QStringLiteral("wendleTools.xml");
    QString definitionsFileName = QStringLiteral("settings.xml");

Q_SIGNALS:
    void ReadRegistryValues(QSettings* settings);
    void WriteRegistryValues(QSettings* settings);

private:
    void openTraceFile(const QString& name);
    void removeTempFiles();

    std::unique_ptr<QFile> traceFile;
};

/// The one registry of the run.
extern AppRegistry* appRegistry;

// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/Installations.h"
#include "app/SettingsStore.h"
#include "definitions/EnvironmentValue.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// What the settings stores and the environment tell the program, and what it keeps there.
class StoresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QSettings(QSettings::SystemScope, u"KOVRA"_s, u"WendleTools"_s).clear(); }

    void keepsWhatTheToolsShare()
    {
        AppRegistry registry;
        appRegistry = &registry;
        QSettings store(QSettings::SystemScope, u"KOVRA"_s, u"WendleTools"_s);
        store.setValue(u"installPath"_s, u"/kept"_s);
        store.setValue(u"searchPaths"_s, QStringList{u"lib"_s});
        store.setValue(u"orvc_messagePersonality"_s, u"C:\\m.p_s"_s);
        store.setValue(u"autoCreateExts"_s, QStringList{u"*.c"_s, u"*.h"_s});
        store.sync();
        PersistedValues values;
        const QString tools = QFileInfo(u"/opt/tools"_s).absoluteFilePath();
        values.Read(tools + u"/bin/wizard"_s);
        QCOMPARE(values.binArea, tools + u"/bin"_s);
        QCOMPARE(values.xmlArea, tools + u"/xml"_s);
        QCOMPARE(values.helpArea, tools + u"/help"_s);
        QCOMPARE(values.cMessagePersonality, u"C:\\m.p_s"_s);
        QVERIFY(values.runCMA);
        QCOMPARE(values.rootMakefile, QString());
        values.rootMakefile = u"C:\\src\\Makefile"_s;
        values.projectList = {u"a\\b.prj"_s};
        values.installPath = u"/changed"_s;
        values.searchPaths = {u"changed"_s};
        values.runCMA = false;
        values.Write();

        store.sync();
        QCOMPARE(store.value(u"rootMakefile"_s), u"C:/src/Makefile"_s);
        QCOMPARE(store.value(u"orvc_messagePersonality"_s), u"C:/m.p_s"_s);
        QCOMPARE(store.value(u"projectList"_s).toStringList(), QStringList{u"a/b.prj"_s});
        QCOMPARE(store.value(u"autoCreateExts"_s), (QStringList{u"*.c"_s, u"*.h"_s}));
        QCOMPARE(store.value(u"installPath"_s), u"/kept"_s);
        QCOMPARE(store.value(u"searchPaths"_s).toStringList(), QStringList{u"lib"_s});
        QCOMPARE(store.value(u"runCMA"_s).toBool(), false);
    }

    void userStoreStandsInForTheSystems()
    {
        const QByteArray systemFolder = qgetenv("XDG_CONFIG_DIRS");
        // A file where the folder should be: not even the administrator can write there.
        const QByteArray blocked = QDir::tempPath().toLocal8Bit() + "/blocked";
        QVERIFY(QFile(QString::fromLocal8Bit(blocked)).open(QIODevice::WriteOnly));
        const auto kept = [] { return SettingsStore::openForReading(u"Stores"_s)->value(u"key"_s).toString(); };
        // What is read at once, and what when the system's folder is the usual one again.
        const auto written = [&](const QString& value, const QByteArray& folder) {
            qputenv("XDG_CONFIG_DIRS", folder);
            const bool done = SettingsStore::write(u"Stores"_s, [&](auto& store) { store.setValue(u"key"_s, value); });
            QString found = done ? kept() : u"failed"_s;
            qputenv("XDG_CONFIG_DIRS", systemFolder);
            return found + u", later "_s + kept();
        };
        QCOMPARE(written(u"system"_s, systemFolder), u"system, later system"_s);
        QCOMPARE(written(u"user"_s, blocked), u"user, later user"_s);
        QCOMPARE(written(u"system again"_s, systemFolder), u"system again, later system again"_s);
        // Both scopes may be set to one folder: what was just written must not be taken for an older copy.
        QCOMPARE(written(u"shared"_s, qgetenv("XDG_CONFIG_HOME")), u"shared, later shared"_s);
    }

    void findsTheLastVersion()
    {
        const QTemporaryDir folder;
        qputenv("TEST_ORV_PATH", folder.filePath(u"variable"_s).toLocal8Bit());
        const auto found = [&folder](QSettings::Scope scope, const QStringList& versions, const QString& stale = {}) {
            QSettings store(scope, u"KOVRA"_s, u"Orv Test Analyser"_s);
            for (const QString& version : versions) {
                QDir(folder.path()).mkpath(version);
                store.setValue(version + "/Path"_L1, version == stale ? u"/nowhere"_s : folder.filePath(version));
            }
            store.sync();
            const QString place = Installations::FindInstallation(u"Orv Test Analyser"_s, u"TEST_ORV_PATH"_s);
            store.clear();
            return QDir(folder.path()).relativeFilePath(place);
        };
        // The installers write system-wide, a user may have an installation of his own: both count.
        for (const auto scope : {QSettings::SystemScope, QSettings::UserScope}) {
            QCOMPARE(found(scope, {u"8.1"_s, u"9.0"_s}), u"9.0"_s);
            // In the order of texts.
            QCOMPARE(found(scope, {u"10.0"_s, u"9.0"_s}), u"9.0"_s);
            // Where the last one is stale, no older one takes its place.
            QCOMPARE(found(scope, {u"8.1"_s, u"9.0"_s}, u"9.0"_s), u"variable"_s);
            QCOMPARE(found(scope, {}), u"variable"_s);
        }
    }

    void readsVariables()
    {
        const auto value = [](const QString& name, bool orCurrent = false) {
            return EnvironmentValue(name, orCurrent, {u"orvcpath=C:/A=B"_s, u"EMPTY="_s, u"ROOT=/"_s});
        };
        QCOMPARE(value(u"ORVCPATH"_s), u"C:/A"_s);
        QCOMPARE(value(u"$ORVCPATH"_s), u"C:/A"_s);
        QCOMPARE(value(u"ORVC"_s), QString());
        QCOMPARE(value(u"EMPTY"_s), QString());
        QCOMPARE(value(u"ROOT"_s, true), u"/"_s);
        QCOMPARE(value(u"ORVCPATH"_s, true), QDir::currentPath());
    }
};

KOVRA_TEST(StoresTest)
#include "StoresTest.moc"

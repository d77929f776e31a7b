// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/Installations.h"
#include "app/SettingsStore.h"
#include "definitions/EnvironmentValue.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

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
        values.Read(u"/opt/tools/bin/wizard"_s);
        QCOMPARE(values.binArea + values.xmlArea + values.helpArea, u"/opt/tools/bin/opt/tools/xml/opt/tools/help"_s);
        QCOMPARE(values.cMessagePersonality, u"C:\\m.p_s"_s);
        QVERIFY(values.runCMA && values.rootMakefile.isEmpty());
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
        const std::pair<QString, QByteArray> steps[] = {
            {u"system"_s, systemFolder},
            {u"user"_s, blocked},
            {u"system again"_s, systemFolder},
            // Both scopes may be set to one folder: what was just written must not be taken for an older copy.
            {u"shared"_s, qgetenv("XDG_CONFIG_HOME")}};
        const auto kept = [] { return SettingsStore::openForReading(u"Stores"_s)->value(u"key"_s).toString(); };
        QString before;
        for (const auto& step : steps) {
            qputenv("XDG_CONFIG_DIRS", systemFolder);
            QCOMPARE(kept(), before);
            qputenv("XDG_CONFIG_DIRS", step.second);
            QVERIFY(SettingsStore::write(u"Stores"_s, [&](auto& store) { store.setValue(u"key"_s, step.first); }));
            QCOMPARE(kept(), step.first);
            before = step.first;
        }
        qputenv("XDG_CONFIG_DIRS", systemFolder);
    }

    void findsTheLastVersion()
    {
        QTemporaryDir folder;
        qputenv("TEST_ORV_PATH", folder.filePath(u"variable"_s).toLocal8Bit());
        // The last in the order of texts counts. Where that one is stale, no older one takes its place.
        const std::tuple<QStringList, QString, QString> rows[] = {{{u"8.1"_s, u"9.0"_s}, {}, u"9.0"_s},
                                                                  {{u"10.0"_s, u"9.0"_s}, {}, u"9.0"_s},
                                                                  {{u"8.1"_s, u"9.0"_s}, u"9.0"_s, u"variable"_s},
                                                                  {{}, {}, u"variable"_s}};
        for (const auto& [versions, stale, found] : rows) {
            // The installers write system-wide, a user may have an installation of his own: both count.
            for (const QSettings::Scope scope : {QSettings::SystemScope, QSettings::UserScope}) {
                QSettings store(scope, u"KOVRA"_s, u"Orv Test Analyser"_s);
                for (const QString& version : versions) {
                    QDir(folder.path()).mkpath(version);
                    store.setValue(version + "/Path"_L1, version == stale ? u"/nowhere"_s : folder.filePath(version));
                }
                store.sync();
                QCOMPARE(Installations::FindInstallation(u"Orv Test Analyser"_s, u"TEST_ORV_PATH"_s),
                         folder.filePath(found));
                store.clear();
            }
        }
    }

    void readsVariables()
    {
        const std::tuple<QString, bool, QString> rows[] = {{u"ORVCPATH"_s, false, u"C:/A"_s},
                                                           {u"$ORVCPATH"_s, false, u"C:/A"_s},
                                                           {u"ORVC"_s, false, {}},
                                                           {u"EMPTY"_s, false, {}},
                                                           {u"ROOT"_s, true, u"/"_s},
                                                           {u"ORVCPATH"_s, true, QDir::currentPath()}};
        for (const auto& [name, orCurrent, value] : rows) {
            QCOMPARE(EnvironmentValue(name, orCurrent, {u"orvcpath=C:/A=B"_s, u"EMPTY="_s, u"ROOT=/"_s}), value);
        }
    }
};

KOVRA_TEST(StoresTest)
#include "StoresTest.moc"

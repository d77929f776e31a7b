// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/SettingsStore.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

class PersistedValuesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<AppRegistry> registry;

private Q_SLOTS:
    void init()
    {
        registry = std::make_unique<AppRegistry>();
        appRegistry = registry.get();
    }

    void cleanup()
    {
        registry.reset();
        for (const QSettings::Scope scope : {QSettings::SystemScope, QSettings::UserScope}) {
            QSettings(scope, u"KOVRA"_s, u"WendleTools"_s).clear();
        }
    }

    void emptyStoreGivesDefaults()
    {
        PersistedValues values;
        values.Read(u"/opt/tools/bin/wizard"_s);
        QCOMPARE(values.binArea, u"/opt/tools/bin"_s);
        QCOMPARE(values.xmlArea, u"/opt/tools/xml"_s);
        QCOMPARE(values.helpArea, u"/opt/tools/help"_s);
        QCOMPARE(values.installPath, QDir::currentPath());
        QVERIFY(values.runCMA && values.useMessageViewerMessages && values.projectCreatorProductType);
        QVERIFY(values.cMessages.isEmpty() && values.rootMakefile.isEmpty() && values.searchPaths.isEmpty());
    }

    void keepsWhatTheToolsShare()
    {
        {
            QSettings store(QSettings::SystemScope, u"KOVRA"_s, u"WendleTools"_s);
            store.setValue(u"installPath"_s, u"/kept"_s);
            store.setValue(u"searchPaths"_s, QStringList{u"lib"_s});
            store.setValue(u"orvc_messagePersonality"_s, u"C:\\m.p_s"_s);
            store.setValue(u"autoCreateExts"_s, QStringList{u"*.c"_s, u"*.h"_s});
        }
        PersistedValues values;
        values.Read(u"/opt/tools/bin/wizard"_s);
        QCOMPARE(values.cMessagePersonality, u"C:\\m.p_s"_s);
        values.rootMakefile = u"C:\\src\\Makefile"_s;
        values.projectList = {u"a\\b.prj"_s};
        values.installPath = u"/changed"_s;
        values.searchPaths = {u"changed"_s};
        values.runCMA = false;
        values.Write();

        const QSettings store(QSettings::SystemScope, u"KOVRA"_s, u"WendleTools"_s);
        QCOMPARE(store.value(u"rootMakefile"_s).toString(), u"C:/src/Makefile"_s);
        QCOMPARE(store.value(u"orvc_messagePersonality"_s).toString(), u"C:/m.p_s"_s);
        QCOMPARE(store.value(u"projectList"_s).toStringList(), QStringList{u"a/b.prj"_s});
        QCOMPARE(store.value(u"autoCreateExts"_s).toStringList(), (QStringList{u"*.c"_s, u"*.h"_s}));
        QCOMPARE(store.value(u"installPath"_s).toString(), u"/kept"_s);
        QCOMPARE(store.value(u"searchPaths"_s).toStringList(), QStringList{u"lib"_s});
        QCOMPARE(store.value(u"runCMA"_s).toBool(), false);
    }

    void userStoreStandsInForTheSystems()
    {
        const auto keep = [](const QString& value) {
            return SettingsStore::write(u"Stores"_s, [&](QSettings& store) { store.setValue(u"key"_s, value); });
        };
        const auto kept = [] { return SettingsStore::openForReading(u"Stores"_s)->value(u"key"_s).toString(); };
        QVERIFY(keep(u"system"_s));
        QCOMPARE(kept(), u"system"_s);

        // A file where the folder should be: not even the administrator can write there.
        const QByteArray systemFolder = qgetenv("XDG_CONFIG_DIRS");
        const QString blocked = QDir::tempPath() + u"/blocked"_s;
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        qputenv("XDG_CONFIG_DIRS", blocked.toLocal8Bit());
        QVERIFY(keep(u"user"_s));
        QCOMPARE(kept(), u"user"_s);

        qputenv("XDG_CONFIG_DIRS", systemFolder);
        QCOMPARE(kept(), u"user"_s);
        QVERIFY(keep(u"system again"_s));
        QCOMPARE(kept(), u"system again"_s);

        // Both scopes may be set to one folder: what was just written must not be taken for an older copy.
        qputenv("XDG_CONFIG_DIRS", qgetenv("XDG_CONFIG_HOME"));
        QVERIFY(keep(u"shared"_s));
        QCOMPARE(kept(), u"shared"_s);
        qputenv("XDG_CONFIG_DIRS", systemFolder);
    }
};

KOVRA_TEST(PersistedValuesTest)
#include "PersistedValuesTest.moc"

// SPDX-License-Identifier: MIT
#include "app/Installations.h"
#include "TestMain.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class InstallationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheLastVersion_data()
    {
        QTest::addColumn<QStringList>("versions");
        QTest::addColumn<QString>("stale");
        QTest::addColumn<QString>("found");
        QTest::newRow("last in text order") << QStringList{u"8.1"_s, u"9.0"_s} << QString() << u"9.0"_s;
        QTest::newRow("text order, not numeric") << QStringList{u"10.0"_s, u"9.0"_s} << QString() << u"9.0"_s;
        QTest::newRow("a stale last one is not replaced by an older")
            << QStringList{u"8.1"_s, u"9.0"_s} << u"9.0"_s << u"variable"_s;
        QTest::newRow("nothing recorded") << QStringList{} << QString() << u"variable"_s;
    }

    void findsTheLastVersion()
    {
        QFETCH(const QStringList, versions);
        QFETCH(const QString, stale);
        QFETCH(const QString, found);
        QTemporaryDir folder;
        qputenv("TEST_ORV_PATH", folder.filePath(u"variable"_s).toLocal8Bit());
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

    void readsVariables_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("orCurrent");
        QTest::addColumn<QString>("value");
        QTest::newRow("as written") << u"ORVCPATH"_s << false << u"C:/A"_s;
        QTest::newRow("a leading $ is dropped") << u"$ORVCPATH"_s << false << u"C:/A"_s;
        QTest::newRow("not a longer name") << u"ORVC"_s << false << QString();
        QTest::newRow("empty value") << u"EMPTY"_s << false << QString();
        QTest::newRow("fallback for a value that names nothing") << u"ORVCPATH"_s << true << QDir::currentPath();
        QTest::newRow("no fallback for one that does") << u"ROOT"_s << true << u"/"_s;
    }

    void readsVariables()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, orCurrent);
        QFETCH(const QString, value);
        const QStringList environment{u"orvcpath=C:/A=B"_s, u"EMPTY="_s, u"ROOT=/"_s};
        QCOMPARE(EnvironmentValue(name, orCurrent, environment), value);
    }
};

KOVRA_TEST(InstallationsTest)
#include "InstallationsTest.moc"

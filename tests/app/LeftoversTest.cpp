// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/TemporaryFiles.h"
#include "Installation.h"
#include "TestMain.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

QString writeTemporary(const QString& name, const QByteArray& contents)
{
    QFile file(QDir::tempPath() + u'/' + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("cannot write a temporary file");
    }
    return file.fileName();
}

} // namespace

/// What earlier runs left: temporary files, and spoilt values.
class LeftoversTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removesTheFilesOfKilledRuns()
    {
        TemporaryFiles living;
        const QString used = living.create(u"log"_s);
        const QString left = writeTemporary(u"KOVRA-aaaaaa.log"_s, "x");
        const QString others = writeTemporary(u"precious.txt"_s, "x");
        const QString elsewhere = QDir::homePath() + u"/KOVRA-bbbbbb.log"_s;
        QVERIFY(QFile::copy(left, elsewhere));
        const QString list =
            writeTemporary(u"KOVRA-cccccc.owned"_s, (left + u'\n' + others + u'\n' + elsewhere + u'\n').toLocal8Bit());
        TemporaryFiles::removeStale();
        QVERIFY(!QFileInfo::exists(left));
        QVERIFY(!QFileInfo::exists(list));
        QVERIFY(QFileInfo::exists(others));
        QVERIFY(QFileInfo::exists(elsewhere));
        QVERIFY(QFileInfo::exists(used));
        QVERIFY(QFile::remove(others));
        QVERIFY(QFile::remove(elsewhere));
        living.removeAll();
        QCOMPARE(QDir(QDir::tempPath()).entryList({u"KOVRA-*"_s}), QStringList());
    }

    void ignoresASpoiltGeometry()
    {
        const auto sizeOf = [](const QVariant& stored) {
            Installation suite;
            {
                QSettings store(QSettings::SystemScope, u"KOVRA"_s, u"ProjectCreation"_s);
                store.setValue(u"Window/size"_s, stored);
                store.setValue(u"Window/pos"_s, u"somewhere"_s);
            }
            const AppRegistry& registry = suite.start();
            return registry.windowPos == QPoint(150, 85) ? registry.windowSize : QSize();
        };
        QCOMPARE(sizeOf(QSize(800, 600)), QSize(800, 600));
        for (const QVariant& spoilt : {QVariant(u"large"_s), QVariant(QSize(0, 0)), QVariant(QSize(-5, 300))}) {
            QCOMPARE(sizeOf(spoilt), QSize(650, 430));
        }
    }

    void tracesItemsApart()
    {
        QTest::ignoreMessage(QtDebugMsg, "\"Label:\" \"NAME\" \"value\"");
        TraceLog log;
        log.turnOn();
        log.writeVariable(u"Label:"_s, u"NAME"_s, u"value"_s);
    }
};

KOVRA_TEST(LeftoversTest)
#include "LeftoversTest.moc"

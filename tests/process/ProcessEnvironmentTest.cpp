// SPDX-License-Identifier: MIT
#include "process/ProcessEnvironment.h"
#include "app/AppRegistry.h"
#include "Installation.h"
#include "TestMain.h"

#include <QDir>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

class ProcessEnvironmentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void extendsThePath()
    {
        Installation suite;
        const EnvironmentFolders folders{QString(),  u"/tools"_s,           {u"lib"_s, u"/ext/bin"_s},
                                         u"/here"_s, suite.path(u"orvc"_s), suite.path(u"orvcpp"_s)};
        const QStringList result = analyserEnvironment({u"A=1"_s, u"orvcbin=old"_s, u"Path=/x"_s}, folders, true);
        // An empty folder still leaves its place in the list.
        QCOMPARE(result.at(2), QStringList({u"PATH=/x"_s, QString(), u"/tools/lib"_s, u"/tools//ext/bin"_s, u"/here"_s,
                                            suite.path(u"orvc/bin"_s), suite.path(u"orvcpp/bin"_s)})
                                   .join(QDir::listSeparator()));
        QCOMPARE(result.at(1), u"ORVCBIN="_s + suite.path(u"orvc/bin"_s));
        QVERIFY(result.contains(u"ORVCPPPERSONALITIES="_s + suite.path(u"orvcpp/personalities"_s)));
        QVERIFY(result.indexOf(u"ORVCPATH="_s + suite.path(u"orvc"_s)) <
                result.indexOf(u"ORVCPPPATH="_s + suite.path(u"orvcpp"_s)));
        QVERIFY(result.filter(u"TEMP_FILES"_s).isEmpty());
        QCOMPARE(analyserEnvironment({u"A=1"_s}, folders, false), QStringList{u"A=1"_s});
        EnvironmentFolders none = folders;
        none.cInstallDir = u"/nowhere"_s;
        QVERIFY(analyserEnvironment({}, none, true).filter(u"ORVCPATH"_s).isEmpty());
    }

    void setsOneVariable()
    {
        QStringList traced;
        const auto trace = [&](const QString& name, const QString& value) { traced += name + value; };
        QStringList environment{u"a=1"_s, u"b=2"_s};
        SetToEnvValue(environment, u"A"_s, u"3"_s, trace);
        SetToEnvValue(environment, u"A"_s, u"3"_s, trace);
        SetToEnvValue(environment, u"C"_s, u"4"_s, trace);
        QCOMPARE(environment, (QStringList{u"A=3"_s, u"b=2"_s, u"C=4"_s}));
        QCOMPARE(traced, (QStringList{u"A3"_s, u"C4"_s}));
    }

    void childrenInheritIt()
    {
        Installation suite;
        qputenv("LATIN", "caf\xe9");
        suite.start();
        QProcess child;
        child.start(u"sh"_s, {u"-c"_s, u"printf '%s|%s|%s' \"$ORVCBIN\" \"$PATH\" \"$LATIN\""_s});
        QVERIFY(child.waitForFinished());
        const QList<QByteArray> parts = child.readAll().split('|');
        QCOMPARE(parts.at(0), suite.path(u"orvc/bin"_s).toLocal8Bit());
        QVERIFY(parts.at(1).contains(suite.path(u"bin"_s).toLocal8Bit()));
        // The user's own variables keep their bytes.
        QCOMPARE(parts.at(2), QByteArray("caf\xe9"));
        qunsetenv("LATIN");
    }
};

KOVRA_TEST(ProcessEnvironmentTest)
#include "ProcessEnvironmentTest.moc"

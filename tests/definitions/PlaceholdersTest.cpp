// SPDX-License-Identifier: MIT
#include "definitions/Placeholders.h"
#include "app/AppRegistry.h"
#include "definitions/PathHelpers.h"
#include "Installation.h"
#include "TestMain.h"

#include <QDir>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

class PlaceholdersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expands_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expanded");
        const auto row = [](const char* name, const QString& text, const QString& expanded) {
            QTest::newRow(name) << text << expanded;
        };
        row("installation, cleaned", u"%ORVC%/personalities"_s, u"C:/Orv/personalities"_s);
        row("C++ installation", u"%ORVCPP%/x"_s, u"D:/Orv/x"_s);
        row("only the first kind", u"%I%/%ORVC%"_s, u"/suite/%ORVC%"_s);
        row("every occurrence of it", u"%I%/%I%"_s, u"/suite/suite"_s);
        row("own organisation", u"%R%App%Key"_s, u"kovra"_s);
        row("own organisation, closed", u"%R%App%Key%"_s, u"kovra"_s);
        row("other organisation", u"%R%Other%App%Key%/a%/b"_s, u"other/a/b"_s);
        row("unknown key", u"%R%App%None"_s, QString());
        row("store reference with two parts", u"%R%App"_s, u"%R%App"_s);
        row("first variable only", u"%HOME%/a/%TMP%"_s, u"/home/me/a/%TMP%"_s);
        row("not cleaned", u"%HOME%//a"_s, u"/home/me//a"_s);
        row("one percent sign", u"100%"_s, u"100%"_s);
        row("none", u"plain//text"_s, u"plain//text"_s);
    }

    void expands()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, expanded);
        QSettings(QSettings::SystemScope, u"KOVRA"_s, u"App"_s).setValue(u"Key"_s, u"kovra"_s);
        QSettings(QSettings::SystemScope, u"Other"_s, u"App"_s).setValue(u"Key"_s, u"other"_s);
        QCOMPARE(
            ExpandPlaceholders(text, {u"/suite"_s, u"C:/Orv/"_s, u"D:/Orv"_s}, {u"HOME=/home/me"_s, u"TMP=/tmp"_s}),
            expanded);
    }

    void locatesFiles()
    {
        Installation suite;
        const QString home = QDir::homePath();
        const QString inArea = suite.write(u"xml/found.xml"_s, "");
        QCOMPARE(LocateFile(u"/nowhere/found.xml"_s, suite.path(u"xml"_s)), inArea);
        QFile inHome(home + u"/found.xml"_s);
        QVERIFY(inHome.open(QIODevice::WriteOnly));
        QCOMPARE(LocateFile(u"found.xml"_s, suite.path(u"bin"_s)), inHome.fileName());
        QCOMPARE(LocateFile(inArea, home), inArea);
        QVERIFY(inHome.remove());
        QCOMPARE(LocateFile(u"found.xml"_s, suite.path(u"bin"_s)), u"found.xml"_s);
    }
};

KOVRA_TEST(PlaceholdersTest)
#include "PlaceholdersTest.moc"

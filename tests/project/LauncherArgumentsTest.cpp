// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Installation.h"
#include "personality/MessageSelectionFile.h"
#include "project/Project.h"
#include "TestMain.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray contents(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

class LauncherArgumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expands()
    {
        Installation suite;
        suite.define("<codingStandard name='S'><messagePersonality>" + suite.write(u"s.p_s"_s, "").toUtf8() +
                     "</messagePersonality><analyserPersonality>/gone</analyserPersonality></codingStandard>");
        suite.start();
        const QByteArray work = suite.path(u"work"_s).toUtf8();
        const QByteArray body =
            "\nmessage=default string\nanalyser=" + suite.write(u"a b.p_a"_s, "").toUtf8() + "\ncompiler=/gone\n";
        // The root has no results of its own, one of its sub-projects has, the other has not.
        const QString file =
            suite.write(u"work/p.prj"_s,
                        "VersionTag\nStartProjectMarker\nname=P\nsourceDir=" + work + "\noutputDir=" + work + "/out" +
                            body + "a.c\nEndContainedFilesMarker\nStartSubProjectMarker\nStartProjectMarker\nname=Q\n" +
                            "sourceDir=" + work + "\noutputDir=" + work + "/q" + body + "b.c\nc.c\n" +
                            "EndContainedFilesMarker\nStartProjectMarker\nname=R\nsourceDir=r\noutputDir=r" + body +
                            "d.c\nEndContainedFilesMarker\nend\n");
        for (const char* name : {"out/a.c.met", "q/b.c.met", "q/b.c.err", "q/c.c.err"}) {
            suite.write(u"work/"_s + QString::fromLatin1(name), "");
        }
        Project project(file);
        QString problem;
        const QStringList result = project.expandLauncherArguments(
            {u"%Q"_s, u"%PF"_s, u"%P+"_s, u"%P"_s, u"%L+"_s, u"%L"_s, u"%R+"_s, u"%R"_s, u" %P"_s, u"%p"_s, QString()},
            u"ORVC"_s, u"extra"_s, &problem);
        QVERIFY(problem.isEmpty());
        QCOMPARE(result.size(), 16);
        QCOMPARE(result.first(3), (QStringList{u"ORVC"_s, file, u"-via"_s}));
        QCOMPARE(result.mid(4, 2), (QStringList{u"-via"_s, u"extra"_s}));
        QCOMPARE(result[6], result[3]);
        QCOMPARE(result.last(3), (QStringList{u" %P"_s, u"%p"_s, QString()}));
        QVERIFY(result[11].endsWith(".txt"_L1) && result[12].endsWith(".txt"_L1) && result[11] != result[12]);
        QCOMPARE(contents(result[3]), "-outputpath \"" + work + "/out\"\n-via \"" + suite.path(u"a b.p_a"_s).toUtf8() +
                                          "\"\n-via \"" + suite.path(u"s.p_s"_s).toUtf8() + "\"\n");
        QCOMPARE(contents(result[8]), "-outputpath \"" + work + "/out\"\n-outputpath \"" + work + "/q\"\n\"" + work +
                                          "/b.c\"\n-cmaf \"" + work + "/out/P\"\n");
        // The option file is kept as long as its text is the same, the list is always new.
        const QStringList again = project.expandLauncherArguments({u"%P+"_s, u"%L"_s}, {}, {});
        QCOMPARE(again.size(), 3);
        QVERIFY(again[1] == result[3] && again[2] != result[8]);
    }

    void selectsMessages_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QByteArray>("lines");
        QTest::newRow("none") << 0 << QByteArray("old");
        QTest::newRow("one") << 1 << QByteArray("-only 1\n");
        QTest::newRow("eleven") << 11 << QByteArray("-only 1,2,3,4,5,6,7,8,9,10,11\n");
        QTest::newRow("twelve") << 12 << QByteArray("-only 1,2,3,4,5,6,7,8,9,10,11\n-only 12\n");
        QTest::newRow("twenty-two")
            << 22 << QByteArray("-only 1,2,3,4,5,6,7,8,9,10,11\n-only 12,13,14,15,16,17,18,19,20,21\n-only 22\n");
    }

    void selectsMessages()
    {
        QFETCH(const int, count);
        QFETCH(const QByteArray, lines);
        const Installation suite;
        const QString file = suite.write(u"m.via"_s, "old");
        QStringList messages;
        for (int i = 1; i <= count; ++i) {
            messages += QString::number(i);
        }
        QVERIFY(writeMessageSelectionFile(messages, file));
        const QByteArray rule(32, '*');
        const QByteArray head = rule + "\n* REMOVE ANY PREVIOUS SETTINGS *\n" + rule +
                                "\n-forgetall only\n-forgetall nomsg\n-forgetall su\n" + rule + '\n' + rule + '\n';
        QCOMPARE(contents(file), count == 0 ? lines : head + lines);
        QVERIFY(count == 0 || !writeMessageSelectionFile(messages, file + u"/below"_s));
    }
};

KOVRA_TEST(LauncherArgumentsTest)
#include "LauncherArgumentsTest.moc"

// SPDX-License-Identifier: MIT
#include "process/OutputBuffer.h"
#include "TestMain.h"

#include <QTest>

using namespace Qt::StringLiterals;

class OutputBufferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinsWhatReadsCut()
    {
        OutputBuffer buffer(100);
        buffer.append(u"one\r\ntw");
        QCOMPARE(buffer.take(10), QStringList{u"one"_s});
        buffer.append(u"o\n\npro");
        QCOMPARE(buffer.take(1), QStringList{u"two"_s});
        QCOMPARE(buffer.take(10), QStringList{QString()});
        // A prompt that never ends its line appears one call later, what follows it is a paragraph of its own.
        QCOMPARE(buffer.take(10), QStringList{u"pro"_s});
        buffer.append(u"mpt");
        buffer.endLine();
        QCOMPARE(buffer.take(100), QStringList{u"mpt"_s});
        QVERIFY(buffer.isEmpty());
    }

    void staysBounded()
    {
        OutputBuffer buffer(10);
        for (int i = 0; i < 1000; ++i) {
            buffer.append(QString(QString::number(i) + u'\n'));
        }
        QStringList last = buffer.take(100);
        QCOMPARE(last.size(), 10);
        QCOMPARE(last.first(), u"990"_s);
        QCOMPARE(buffer.takeDropped(), qint64(990));
        QCOMPARE(buffer.takeDropped(), qint64(0));
        buffer.append(QString(QString(1 << 20, u'x') + u"\nend\n"_s));
        last = buffer.take(100);
        QCOMPARE(last.last(), u"end"_s);
        QVERIFY(last.first().size() <= 16 * 1024);
        buffer.append(QString(10, u'x') + u"\n1\n2\n"_s);
        QCOMPARE(buffer.take(100, 5).size(), 1);
        QCOMPARE(buffer.take(100, 5).size(), 2);
    }
};

KOVRA_TEST(OutputBufferTest)
#include "OutputBufferTest.moc"

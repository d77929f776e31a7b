// SPDX-License-Identifier: MIT
#include "process/ProgressLine.h"
#include "process/OutputDecoder.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

namespace {

QString textOf(const Progress& progress)
{
    return progress.isKnown() ? u"%1/%2 %3"_s.arg(progress.done).arg(progress.total).arg(progress.item) : u"none"_s;
}

} // namespace

class ProgressLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsReads_data()
    {
        const TestRows<QByteArrayList, QString> row("reads", "progress");
        row("nothing", {"text\n"}, u"none"_s);
        row("one line", {"[34/151] src/main.cpp\n"}, u"34/151 src/main.cpp"_s);
        row("the last counts", {"[1/3] a\n[2/3] b\ntext\n"}, u"2/3 b"_s);
        row("line break of Windows", {"[1/3] a\r\n"}, u"1/3 a"_s);
        row("ended by a carriage return", {"[1/3] a\r[2/3] b\r"}, u"2/3 b"_s);
        row("begun by a carriage return", {"\r[1/3] a", "\r[2/3] b"}, u"2/3 b"_s);
        row("cut in the count", {"[1", "2/1", "51] fi", "le\n"}, u"12/151 file"_s);
        row("cut before the bracket", {"text\n", "[1/3] a\n"}, u"1/3 a"_s);
        row("not at the head", {"at [1/3] a\n"}, u"none"_s);
        row("not at the head of a cut line", {"at ", "[1/3] a\n"}, u"none"_s);
        row("per cent", {"[ 34%] a\n"}, u"none"_s);
        row("blanks", {"[1 / 3] a\n"}, u"none"_s);
        row("more than all", {"[4/3] a\n"}, u"none"_s);
        row("of nothing", {"[0/0] a\n"}, u"none"_s);
        row("too large", {"[1/9999999999] a\n"}, u"none"_s);
        row("words", {"[a/b]\n[/]\n[1/]\n[/1]\n[-1/2]\n[]\n"}, u"none"_s);
        row("without an item", {"[3/3]\n"}, u"3/3 "_s);
        row("not yet begun", {"[0/3] a\n"}, u"0/3 a"_s);
        row("colours", {"[1/3] \x1b[32mBuilding\x1b[0m a\x1b[K\n"}, u"1/3 Building a"_s);
        row("a bad character", {"[1/3] \x82\n"}, u"1/3 "_s + OutputDecoder::text("\x82"));
        row("a long line before", {QByteArray(3000, 'x'), QByteArray(3000, 'x') + "\n[1/3] a\n"}, u"1/3 a"_s);
        row("a long item", {"[1/3] " + QByteArray(3000, 'x') + "\n"}, u"1/3 "_s + QString(1018, u'x'));
    }

    void readsReads()
    {
        const auto [reads, progress] = fetched<QByteArrayList, QString>("reads", "progress");
        ProgressLine line;
        bool changed = false;
        for (const QByteArray& read : reads) {
            changed = line.append(read) || changed;
        }
        QCOMPARE(textOf(line.progress()), progress);
        QCOMPARE(changed, progress != "none"_L1);
        line.clear();
        QCOMPARE(textOf(line.progress()), u"none"_s);
    }

    void tellsOnlyOfChanges()
    {
        ProgressLine line;
        QVERIFY(line.append("[1/3] a\n"));
        QVERIFY(!line.append("text\n[1/3] a\n"));
    }

    void fitsIntoATerminal()
    {
        QCOMPARE(ProgressLine::terminalLine({}, 80), u"\r\x1b[K"_s);
        QCOMPARE(ProgressLine::terminalLine({1, 3, u"a"_s}, 80), u"\r\x1b[K[1/3] a"_s);
        QCOMPARE(ProgressLine::terminalLine({1, 3, u"abc"_s}, 10), u"\r\x1b[K[1/3] abc"_s);
        QCOMPARE(ProgressLine::terminalLine({1, 3, u"abcd"_s}, 10), u"\r\x1b[K[1/3] ab\u2026"_s);
        QCOMPARE(ProgressLine::terminalLine({1, 3, u"abcd"_s}, 0), u"\r\x1b[K\u2026"_s);
    }
};

KOVRA_TEST(ProgressLineTest)
#include "ProgressLineTest.moc"

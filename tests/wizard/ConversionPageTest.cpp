// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Installation.h"
#include "TestMain.h"
#include "wizard/PageSequence.h"
#include "WizardDriver.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {

// A conversion type whose program is a script that gets the project file as its argument.
void defineConversion(const Installation& suite, const QByteArray& script, const QByteArray& more = {})
{
    const QString program = script.isEmpty() ? suite.path(u"missing"_s) : suite.writeScript(u"convert"_s, script);
    suite.define("<projectCreator><name>T</name><orvcProject>1</orvcProject><exe>" + program.toUtf8() +
                 "</exe><exeargs>%PF</exeargs><inputData><displayName>E</displayName></inputData></projectCreator>" +
                 more);
}

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += int(event->type() == QEvent::Paint);
        return false;
    }

    int count = 0;
};

void convert(const WizardDriver& wizard, const Installation& suite)
{
    wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"T"_s);
    wizard.press(QWizard::NextButton);
}

} // namespace

class ConversionPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsTheEnd_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("lastLine");
        QTest::addColumn<QString>("colour");
        QTest::addColumn<QString>("alsoSays");
        QTest::newRow("created") << QByteArray("echo '<b>50%</b> &amp; %1'; echo x > \"$1\"")
                                 << u"New project file: %1"_s << u"black"_s
                                 << u"Conversion Started\n\n<b>50%</b> &amp; %1\nConversion Complete"_s;
        QTest::newRow("not created") << QByteArray("echo no input >&2; exit 4")
                                     << u"Error: Project file [%1] not created"_s << u"red"_s
                                     << u"no input\nThe conversion program ended with exit code 4."_s;
        QTest::newRow("crashed") << QByteArray("echo x > \"$1\"; kill -ABRT $$")
                                 << u"Error: Conversion Process Failed"_s << u"red"_s << u"crashed"_s;
        QTest::newRow("missing") << QByteArray() << u"Error: Could not run conversion process"_s << u"red"_s
                                 << u"/missing: "_s;
    }

    void reportsTheEnd()
    {
        QFETCH(const QByteArray, script);
        QFETCH(const QString, lastLine);
        QFETCH(const QString, colour);
        QFETCH(const QString, alsoSays);
        Installation suite;
        defineConversion(suite, script);
        suite.start();
        suite.write(u"work/p.prj"_s, "old");
        const BoxAnswers boxes({QMessageBox::Yes});
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled());
        const QString output = wizard.output();
        QVERIFY2(output.contains(alsoSays), qPrintable(output));
        const QString message = lastLine.contains("%1"_L1) ? lastLine.arg(wizard.window.ProjectFile()) : lastLine;
        QCOMPARE(output.section(u'\n', -1), message);
        const auto* view = wizard.window.currentPage()->findChild<QTextBrowser*>();
        const QTextCharFormat format = QTextCursor(view->document()->lastBlock()).charFormat();
        QCOMPARE(format.foreground().color() == QColor(Qt::red), colour == "red"_L1);
        QVERIFY(wizard.window.testOption(QWizard::NoCancelButton));
        QCOMPARE(wizard.window.currentPage()->subTitle(), u"Conversion Operation Finished"_s);
        // The old file goes when the conversion really starts.
        const QByteArray left = script.isEmpty() ? "old" : colour == "black"_L1 ? "x\n" : "";
        QCOMPARE(suite.read(u"work/p.prj"_s), left);
        QCOMPARE(QDir(suite.path(u"work"_s)).entryList(QDir::Files).size(), left.isEmpty() ? 0 : 1);
        wizard.press(QWizard::FinishButton);
        QCOMPARE(wizard.window.result(), int(QDialog::Accepted));
    }

    void startsOverAfterBack()
    {
        Installation suite;
        defineConversion(suite, "echo half > \"$1\"; echo running; while :; do sleep 1; done\n");
        suite.write(u"work/p.prj"_s, "old");
        suite.start();
        WizardDriver wizard;
        const BoxAnswers boxes({QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes});
        convert(wizard, suite);
        QTRY_VERIFY(wizard.output().contains("running"_L1));
        QVERIFY(!wizard.window.button(QWizard::FinishButton)->isEnabled());
        // Enter once too often does no harm.
        QTest::keyClick(wizard.window.focusWidget(), Qt::Key_Return);
        QTest::keyClick(wizard.window.focusWidget(), Qt::Key_Space);
        QVERIFY(!wizard.output().contains("stopped"_L1));
        wizard.press(QWizard::BackButton);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QVERIFY(!QFile::exists(wizard.window.ProjectFile()));

        wizard.press(QWizard::NextButton);
        QTRY_VERIFY(wizard.output().contains("running"_L1));
        wizard.button(u"&Stop"_s).click();
        QVERIFY(wizard.output().endsWith("The conversion was stopped.\nError: Conversion Process Failed"_L1));
        QVERIFY(!QFile::exists(wizard.window.ProjectFile()));

        // Escape asks first; No goes on, Yes stops.
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::NextButton);
        QTRY_VERIFY(wizard.output().contains("running"_L1));
        wizard.window.reject();
        QVERIFY(wizard.window.isVisible());
        wizard.window.reject();
        QVERIFY(!wizard.window.isVisible());
        QVERIFY(!QFile::exists(wizard.window.ProjectFile()));
        QCOMPARE(boxes.texts.size(), 3);
    }

    void closingLeavesNoHalfMadeProject()
    {
        for (const bool byTitleBar : {true, false}) {
            Installation suite;
            defineConversion(suite,
                             "trap 'exit 143' TERM; echo half > \"$1\"; echo running; while :; do sleep 0.1; done\n",
                             "<applicationPage/>");
            AppRegistry& registry = suite.start();
            WizardDriver wizard;
            const BoxAnswers boxes({QMessageBox::Yes});
            convert(wizard, suite);
            QTRY_VERIFY(wizard.output().contains("running"_L1));
            if (byTitleBar) {
                wizard.window.close();
                QVERIFY(!wizard.window.isVisible());
            } else {
                registry.ShutDown();
            }
            QVERIFY(!QFile::exists(wizard.window.ProjectFile()));
            QVERIFY(!wizard.window.conversionDone);
        }
    }

    void movesOnToTheFollowUpPage()
    {
        Installation suite;
        defineConversion(suite, "test -f \"$0.broken\" || echo $$ > \"$1\"\n", "<applicationPage title=\"Tools\"/>");
        suite.start();
        WizardDriver wizard;
        PaintCounter paints(*wizard.window.page(DisplayOptionsPageId));
        convert(wizard, suite);
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        // It is not only there, it is seen.
        QTRY_VERIFY(paints.count > 0);
        QVERIFY(wizard.window.conversionDone);
        const QByteArray first = suite.read(u"work/p.prj"_s);
        QAbstractButton* again = wizard.window.button(QWizard::CustomButton1);
        QCOMPARE(again->text(), u"New Project Conversion"_s);
        const BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Yes});
        again->click();
        QCOMPARE(wizard.window.currentId(), int(StartPageId));
        QVERIFY(QFile::exists(wizard.window.ProjectFile()));
        convert(wizard, suite);
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        QVERIFY(suite.read(u"work/p.prj"_s) != first);

        // One that fails after one that succeeded leads nowhere but out.
        again->click();
        suite.write(u"convert.broken"_s, "");
        convert(wizard, suite);
        QTRY_VERIFY(wizard.output().contains("not created"_L1));
        QVERIFY(!wizard.window.button(QWizard::NextButton)->isVisible());
        wizard.press(QWizard::FinishButton);
        QVERIFY(!wizard.window.isVisible());
    }

    void keepsAFloodWithinBounds()
    {
        Installation suite;
        // Long lines count by their length, and what only the view drops is told as well.
        defineConversion(suite, "seq 1 200000; head -c 3000000 /dev/zero | tr '\\0' x; echo; echo x > \"$1\"\n");
        suite.start();
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY_WITH_TIMEOUT(wizard.window.button(QWizard::FinishButton)->isEnabled(), 30000);
        QVERIFY(wizard.output().contains("\n200000\nxxx"_L1));
        QVERIFY(wizard.output().count(u'\n') < 6000);
        const QString label = wizard.labels().filter(u"Complete output"_s).value(0);
        QFile log(label.section(u": "_s, 1));
        QVERIFY2(log.open(QIODevice::ReadOnly), qPrintable(label));
        QCOMPARE(log.readAll().count('\n'), 200001);
    }
};

KOVRA_TEST(ConversionPageTest)
#include "ConversionPageTest.moc"

// SPDX-License-Identifier: MIT
#include "TestMain.h"
#include "WizardDriver.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// A suite whose only conversion runs a script that gets the project file as its argument.
AppRegistry& startSuite(Installation& suite, const QByteArray& script, const QByteArray& more = {})
{
    const QString program = script.isEmpty() ? suite.path(u"missing"_s) : suite.writeScript(u"convert"_s, script);
    suite.define("<projectCreator><name>T</name><orvcProject>1</orvcProject><exe>" + program.toUtf8() +
                 "</exe><exeargs>%PF</exeargs><inputData><displayName>E</displayName></inputData></projectCreator>" +
                 more);
    return suite.start();
}

struct PaintCounter : QObject
{
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
    void reportsTheEnd()
    {
        conversionEnds("echo '<b>50%</b> &amp; %1'; echo x > \"$1\"",
                       u"Conversion Started\n\n<b>50%</b> &amp; %1\nConversion Complete"_s, u"New project file: %1"_s);
        conversionEnds("echo no input >&2; exit 4", u"no input\nThe conversion program ended with exit code 4."_s,
                       u"Error: Project file [%1] not created"_s);
        conversionEnds("echo x > \"$1\"; kill -ABRT $$", u"crashed"_s, u"Error: Conversion Process Failed"_s);
        conversionEnds({}, u"/missing: "_s, u"Error: Could not run conversion process"_s);
    }

    void stoppingLeavesNoHalfMadeProject()
    {
        Installation suite;
        // One that ends politely when told to has not done its work either.
        startSuite(suite, "trap 'exit 143' TERM; echo half > \"$1\"; echo running; while :; do sleep 0.1; done\n",
                   "<applicationPage/>");
        suite.write(u"work/p.prj"_s, "old");
        const BoxAnswers boxes({QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes, QMessageBox::Yes});
        {
            WizardDriver wizard;
            convert(wizard, suite);
            QTRY_VERIFY(wizard.output().contains("running"_L1));
            QVERIFY(!wizard.window.button(QWizard::FinishButton)->isEnabled());
            // Enter once too often does no harm.
            QTest::keyClick(wizard.window.focusWidget(), Qt::Key_Return);
            QTest::keyClick(wizard.window.focusWidget(), Qt::Key_Space);
            QVERIFY(!wizard.output().contains("stopped"_L1));
            wizard.press(QWizard::BackButton);
            QVERIFY(wizard.window.currentId() == XmlPageId && !QFile::exists(wizard.window.ProjectFile()));
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
            QVERIFY(wizard.window.isVisible() && QFile::exists(wizard.window.ProjectFile()));
            wizard.window.reject();
            QVERIFY(!wizard.window.isVisible() && !QFile::exists(wizard.window.ProjectFile()));
        }
        for (const bool byTitleBar : {true, false}) {
            AppRegistry& registry = suite.start();
            WizardDriver wizard;
            convert(wizard, suite);
            QTRY_VERIFY(wizard.output().contains("running"_L1));
            byTitleBar ? void(wizard.window.close()) : registry.ShutDown();
            QVERIFY(wizard.window.isHidden() == byTitleBar && !wizard.window.conversionDone);
            QVERIFY(!QFile::exists(wizard.window.ProjectFile()));
        }
        QCOMPARE(boxes.texts.size(), 4);
    }

    void movesOnToTheFollowUpPage()
    {
        Installation suite;
        const auto application = [&](const QString& name, const QByteArray& script) {
            return "<application name='" + name.toUtf8() + "'><exe>" + suite.writeScript(name, script).toUtf8() +
                   "</exe>";
        };
        const AppRegistry& registry =
            startSuite(suite, "echo a warning; test -f \"$0.broken\" || echo $$ > \"$1\"\n",
                       "<applicationPage>" + application(u"Long"_s, "echo $$ > \"$0.pid\"; exec sleep 1000") +
                           "</application>" + application(u"Text"_s, "echo hello") +
                           "<displayoutput>text</displayoutput></application></applicationPage>");
        WizardDriver wizard;
        PaintCounter paints(*wizard.window.page(DisplayOptionsPageId));
        convert(wizard, suite);
        // It is not only there, it is seen.
        QTRY_VERIFY(wizard.window.currentId() == DisplayOptionsPageId && paints.count > 0);
        // What the conversion said can still be read.
        QString said;
        QTimer reader;
        connect(&reader, &QTimer::timeout, this, [&said] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                said = dialog->findChild<QPlainTextEdit*>()->toPlainText();
                dialog->reject();
            }
        });
        reader.start(5);
        wizard.button(u"Show the &conversion's output..."_s).click();
        reader.stop();
        QCOMPARE(said, u"a warning\n"_s);
        // An Enter that was meant for the page before does nothing here.
        QTest::keyClick(wizard.window.focusWidget() ? wizard.window.focusWidget() : &wizard.window, Qt::Key_Return);
        QVERIFY(wizard.window.isVisible());
        const QByteArray first = suite.read(u"work/p.prj"_s);

        BoxAnswers boxes({QMessageBox::No, QMessageBox::No, QMessageBox::No, QMessageBox::Yes, QMessageBox::Yes});
        QAbstractButton& tool = wizard.button(u"Long"_s);
        QByteArray child;
        tool.click();
        QTRY_VERIFY((child = suite.read(u"Long.pid"_s)).size() > 1);
        wizard.window.close();
        wizard.press(QWizard::FinishButton);
        wizard.window.reject();
        QCOMPARE(boxes.texts,
                 QStringList(3, u"Child Applications Still Running|Closing this application will kill child "
                                "applications.\nDo you wish to close this application?"_s));
        QVERIFY(wizard.window.isVisible() && Installation::isAlive(child) && tool.text().endsWith("running..."_L1));
        // Stop in its menu ends it without a word.
        tool.actions().constFirst()->trigger();
        QTRY_VERIFY(!Installation::isAlive(child) && tool.text() == "Long"_L1);

        // A new conversion closes the windows of the old one but keeps its result.
        wizard.button(u"Text"_s).click();
        QTRY_COMPARE(registry.openDialogs.size(), 1);
        controlCalled<QAbstractButton>(wizard.window, u"New Project Conversion"_s).click();
        QVERIFY(!registry.openDialogs[0]->isVisible() && QFile::exists(wizard.window.ProjectFile()));
        // One that fails after one that succeeded leads nowhere but out or back.
        QFile broken(suite.write(u"convert.broken"_s, ""));
        convert(wizard, suite);
        QTRY_VERIFY(wizard.output().contains("not created"_L1));
        QVERIFY(!wizard.window.button(QWizard::NextButton)->isVisible());
        QVERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled() && broken.remove());
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::NextButton);
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        QVERIFY(suite.read(u"work/p.prj"_s) != first);
        QCOMPARE(boxes.texts.size(), 4);

        suite.write(u"Long.pid"_s, "");
        tool.click();
        QTRY_VERIFY((child = suite.read(u"Long.pid"_s)).size() > 1);
        wizard.window.reject();
        QCOMPARE(boxes.texts.size(), 5);
        QVERIFY(!wizard.window.isVisible() && !Installation::isAlive(child));
    }

    void keepsAFloodWithinBounds()
    {
        Installation suite;
        // Long lines count by their length, and what only the view drops is told as well.
        startSuite(suite, "seq 1 200000; head -c 500000 /dev/zero | tr '\\0' x; echo; echo x > \"$1\"\n");
        const WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY_WITH_TIMEOUT(wizard.window.button(QWizard::FinishButton)->isEnabled(), 30000);
        QVERIFY(wizard.output().contains("\n200000\nxxx"_L1) && wizard.output().count(u'\n') < 6000);
        const QString label = wizard.labels().filter(u"Complete output"_s).value(0);
        QFile log(label.section(u": "_s, 1));
        QVERIFY2(log.open(QIODevice::ReadOnly), qPrintable(label));
        QCOMPARE(log.readAll().count('\n'), 200001);
    }

private:
    void conversionEnds(const QByteArray& script, const QString& says, QString lastLine)
    {
        Installation suite;
        startSuite(suite, script);
        suite.write(u"work/p.prj"_s, "old");
        const BoxAnswers boxes({QMessageBox::Yes});
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled());
        const QString output = wizard.output();
        QVERIFY2(output.contains(says), qPrintable(output));
        QCOMPARE(output.section(u'\n', -1), lastLine.replace(u"%1"_s, wizard.window.ProjectFile()));
        const auto* view = wizard.window.currentPage()->findChild<QTextBrowser*>();
        const QTextCharFormat format = QTextCursor(view->document()->lastBlock()).charFormat();
        QCOMPARE(format.foreground().color() == QColor(Qt::red), lastLine.startsWith("Error"_L1));
        QVERIFY(wizard.window.testOption(QWizard::NoCancelButton));
        // The old file goes when the conversion really starts.
        const QByteArray left = script.isEmpty() ? "old" : lastLine.startsWith("Error"_L1) ? "" : "x\n";
        QCOMPARE(suite.read(u"work/p.prj"_s), left);
        QCOMPARE(QDir(suite.path(u"work"_s)).entryList(QDir::Files).size(), left.isEmpty() ? 0 : 1);
        wizard.press(QWizard::FinishButton);
        QCOMPARE(wizard.window.result(), int(QDialog::Accepted));
    }
};

KOVRA_TEST(ConversionPageTest)
#include "ConversionPageTest.moc"

// SPDX-License-Identifier: MIT
#include "SystemCalls.h"
#include "TestMain.h"
#include "WizardDriver.h"

#include <QAction>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {

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

AppRegistry& startSlowSuite(Installation& suite)
{
    suite.write(u"work/p.prj"_s, "old");
    return startSuite(suite, "write $1 half; print running; hang", "<applicationPage/>");
}

/// A suite whose follow-up page has a tool that goes on and one that opens a window.
struct FollowUp : Installation
{
    FollowUp()
    {
        startSuite(*this, "print a warning; if-exists $0.broken { exit }; mark $1",
                   "<applicationPage>" + application(u"Long"_s, "mark $0.pid; hang") + "</application>" +
                       application(u"Text"_s, "print hello") +
                       "<displayoutput>text</displayoutput></application></applicationPage>");
        wizard = std::make_unique<WizardDriver>();
    }

    void convertOnce() const
    {
        convert(*wizard, *this);
        QTRY_COMPARE(wizard->window.currentId(), int(DisplayOptionsPageId));
    }

    QByteArray child() const { return read(u"Long.pid"_s); }

    std::unique_ptr<WizardDriver> wizard;

private:
    QByteArray application(const QString& name, const QByteArray& script) const
    {
        return "<application name='" + name.toUtf8() + "'><exe>" + writeChild(name, script).toUtf8() + "</exe>";
    }
};

} // namespace

class ConversionPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsTheEnd_data()
    {
        const TestRows<QByteArray, QString, QString, QByteArray> row("script", "says", "lastLine", "leaves");
        row("created", "print <b>50%</b> &amp'; %1'; write $1 x",
            u"Conversion Started\n\n<b>50%</b> &amp; %1\nConversion Complete"_s, u"New project file: %1"_s, "x\n");
        row("not created", "print-error no input; exit 4",
            u"no input\nThe conversion program ended with exit code 4."_s, u"Error: Project file [%1] not created"_s,
            "old");
        row("crashed", "write $1 x; crash", u"crashed"_s, u"Error: Conversion Process Failed"_s, "old");
        // The old file goes when there is a new one.
        row("not there", {}, u"/missing: "_s, u"Error: Could not run conversion process"_s, "old");
    }

    void reportsTheEnd()
    {
        const auto [script, says] = fetched<QByteArray, QString>("script", "says");
        QFETCH(QString, lastLine);
        QFETCH(const QByteArray, leaves);
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
        QCOMPARE(suite.read(u"work/p.prj"_s), leaves);
        QCOMPARE(QDir(suite.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden).size(), 1);
        wizard.press(QWizard::FinishButton);
        QCOMPARE(wizard.window.result(), int(QDialog::Accepted));
    }

    void stoppingLeavesNoHalfMadeProject()
    {
        Installation suite;
        startSlowSuite(suite);
        const BoxAnswers boxes({QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes});
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY(wizard.output().contains("running"_L1));
        QVERIFY(!wizard.window.button(QWizard::FinishButton)->isEnabled());
        // Enter once too often does no harm.
        QTest::keyClick(wizard.window.focusWidget(), Qt::Key_Return);
        QTest::keyClick(wizard.window.focusWidget(), Qt::Key_Space);
        QVERIFY(!wizard.output().contains("stopped"_L1));
        wizard.press(QWizard::BackButton);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QCOMPARE(suite.read(u"work/p.prj"_s), QByteArray("old"));
        wizard.press(QWizard::NextButton);
        QTRY_VERIFY(wizard.output().contains("running"_L1));
        wizard.button(u"&Stop"_s).click();
        QVERIFY(
            wizard.output().endsWith("The conversion was stopped.\nThe project file that was there before is kept.\n"
                                     "Error: Conversion Process Failed"_L1));
        QCOMPARE(suite.read(u"work/p.prj"_s), QByteArray("old"));
        // Escape asks first; No goes on, Yes stops.
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::NextButton);
        QTRY_VERIFY(wizard.output().contains("running"_L1));
        wizard.window.reject();
        QVERIFY(wizard.window.isVisible());
        QVERIFY(QFile::exists(wizard.window.ProjectFile()));
        wizard.window.reject();
        QVERIFY(!wizard.window.isVisible());
        QCOMPARE(suite.read(u"work/p.prj"_s), QByteArray("old"));
        QCOMPARE(boxes.texts.size(), 3);
    }

    void endingLeavesNoHalfMadeProject_data()
    {
        const TestRows<bool, int> row("byTitleBar", "boxes");
        // One box is about the old project file.
        row("title bar", true, 2);
        row("end of the session", false, 1);
    }

    void endingLeavesNoHalfMadeProject()
    {
        QFETCH(const bool, byTitleBar);
        Installation suite;
        AppRegistry& registry = startSlowSuite(suite);
        const BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Yes});
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY(wizard.output().contains("running"_L1));
        byTitleBar ? void(wizard.window.close()) : registry.ShutDown();
        QCOMPARE(wizard.window.isHidden(), byTitleBar);
        QVERIFY(!wizard.window.conversionDone);
        QCOMPARE(suite.read(u"work/p.prj"_s), QByteArray("old"));
        QTEST(int(boxes.texts.size()), "boxes");
    }

    void opensNoWindowWithoutOutput()
    {
        Installation suite;
        startSuite(suite, "write $1 x", "<applicationPage/>");
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        const BoxAnswers boxes({QMessageBox::Ok});
        wizard.button(u"Show the &conversion's output..."_s).click();
        QCOMPARE(boxes.texts, QStringList{u"Output of the conversion|The conversion program printed nothing."_s});
    }

    void saysThatTheOutputCouldNotBeKept_data()
    {
        const TestRows<bool> row("hasFolder");
        row("no folder", false);
#ifdef Q_OS_UNIX
        row("full disk", true);
#endif
    }

    void saysThatTheOutputCouldNotBeKept()
    {
        QFETCH(const bool, hasFolder);
        Installation suite;
        const auto noFolder = hasFolder ? nullptr : std::make_unique<NoTemporaryFolder>(suite);
        startSuite(suite, "print running; await $0.go; write $1 x", "<applicationPage/>");
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY(wizard.output().contains("running"_L1));
        // As on a full disk, what was opened can not be written.
        auto disk = hasFolder ? std::make_unique<FullDisk>() : nullptr;
        suite.write(u"convert.go"_s, {});
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        disk.reset();
        const BoxAnswers boxes({QMessageBox::Ok});
        wizard.button(u"Show the &conversion's output..."_s).click();
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY2(boxes.texts[0].contains(QDir::toNativeSeparators(QDir::tempPath())), qPrintable(boxes.texts[0]));
    }

    void movesOnToTheFollowUpPage()
    {
        FollowUp suite;
        PaintCounter paints(*suite.wizard->window.page(DisplayOptionsPageId));
        suite.convertOnce();
        // It is not only there, it is seen.
        QTRY_VERIFY(paints.count > 0);
        // What the conversion said can still be read.
        const BoxAnswers dialogs({});
        suite.wizard->button(u"Show the &conversion's output..."_s).click();
        QCOMPARE(dialogs.texts, QStringList{u"Output of the conversion|a warning\n"_s});
        // An Enter that was meant for the page before does nothing here.
        QWidget* focus = suite.wizard->window.focusWidget();
        QTest::keyClick(focus ? focus : &suite.wizard->window, Qt::Key_Return);
        QVERIFY(suite.wizard->window.isVisible());
    }

    void asksBeforeItEndsTools()
    {
        FollowUp suite;
        ApplicationWindow& window = suite.wizard->window;
        suite.convertOnce();
        const BoxAnswers boxes({QMessageBox::No, QMessageBox::No, QMessageBox::No, QMessageBox::Yes});
        QAbstractButton& tool = suite.wizard->button(u"Long"_s);
        tool.click();
        QTRY_VERIFY(suite.child().size() > 1);
        const QByteArray child = suite.child();
        window.close();
        suite.wizard->press(QWizard::FinishButton);
        window.reject();
        const QString question = u"Child Applications Still Running|Closing this application will kill child "
                                 "applications.\nDo you wish to close this application?"_s;
        QCOMPARE(boxes.texts, QStringList(3, question));
        QVERIFY(window.isVisible());
        QVERIFY(Installation::isAlive(child));
        QVERIFY2(tool.text().endsWith("running..."_L1), qPrintable(tool.text()));
        window.reject();
        QCOMPARE(boxes.texts, QStringList(4, question));
        QVERIFY(!window.isVisible());
        QVERIFY(!Installation::isAlive(child));
    }

    // Stop in its menu ends a tool without a word.
    void stopsATool()
    {
        FollowUp suite;
        suite.convertOnce();
        const BoxAnswers boxes({});
        QAbstractButton& tool = suite.wizard->button(u"Long"_s);
        tool.click();
        QTRY_VERIFY(suite.child().size() > 1);
        tool.actions().constFirst()->trigger();
        QTRY_VERIFY(!Installation::isAlive(suite.child()));
        QTRY_COMPARE(tool.text(), u"Long"_s);
        QCOMPARE(boxes.texts, QStringList());
    }

    void convertsAnew()
    {
        FollowUp suite;
        WizardDriver& wizard = *suite.wizard;
        suite.convertOnce();
        const QByteArray first = suite.read(u"work/p.prj"_s);
        // A new conversion closes the windows of the old one but keeps its result.
        wizard.button(u"Text"_s).click();
        QTRY_COMPARE(appRegistry->openDialogs.size(), 1);
        const BoxAnswers boxes({QMessageBox::Yes});
        controlCalled<QAbstractButton>(wizard.window, u"New Project Conversion"_s).click();
        QVERIFY(!appRegistry->openDialogs[0]->isVisible());
        QVERIFY(QFile::exists(wizard.window.ProjectFile()));
        // One that fails after one that succeeded leads nowhere but out or back.
        QFile broken(suite.write(u"convert.broken"_s, ""));
        convert(wizard, suite);
        QTRY_VERIFY(wizard.output().contains("not created"_L1));
        QVERIFY(!wizard.window.button(QWizard::NextButton)->isVisible());
        QVERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled());
        QVERIFY(broken.remove());
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::NextButton);
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        QVERIFY(suite.read(u"work/p.prj"_s) != first);
        QCOMPARE(boxes.texts.size(), 1);
    }

    void keepsAFloodWithinBounds()
    {
        Installation suite;
        // Long lines count by their length, and what only the view drops is told as well.
        startSuite(suite, "flood 1200000 12345; print last; long-line 500000; print; write $1 x");
        const WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY_WITH_TIMEOUT(wizard.window.button(QWizard::FinishButton)->isEnabled(), 30000);
        QVERIFY(wizard.output().contains("\nlast\nxxx"_L1));
        QVERIFY(wizard.output().count(u'\n') < 6000);
        const QString label = wizard.labels().filter(u"Complete output"_s).value(0);
        QFile log(label.section(u": "_s, 1));
        QVERIFY2(log.open(QIODevice::ReadOnly), qPrintable(label));
        QCOMPARE(log.readAll().count('\n'), 200002);
    }
};

KOVRA_TEST(ConversionPageTest)
#include "ConversionPageTest.moc"

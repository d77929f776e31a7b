// SPDX-License-Identifier: MIT
#include "process/StrayProcesses.h"
#include "TestMain.h"
#include "WizardDriver.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray logOf(const QString& folder)
{
    QByteArray contents;
    const QStringList logs = QDir(folder).entryList({u"KOVRA-*.log"_s});
    for (const QString& name : logs) {
        QFile log(folder + u'/' + name);
        contents += log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
    }
    return contents;
}

} // namespace

/// What the wizard tells of a conversion, or of its data, that is not quite as it should be.
class ConversionWarningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void remembersTheExitCode()
    {
        Installation suite;
        startSuite(suite, "print-error why; write $1 x; exit 7", "<applicationPage/>");
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        QVERIFY2(wizard.window.conversionWarning.contains("exit code 7"_L1),
                 qPrintable(wizard.window.conversionWarning));
        QVERIFY(wizard.labels().contains(wizard.window.conversionWarning));
        QCOMPARE(logOf(QDir::tempPath()), QByteArray("why\nThe conversion program ended with exit code 7.\n"));
    }

    void tellsOfReplacedValues()
    {
        Installation suite;
        startSuite(suite, "write $1 x");
        suite.write(u"work/a%E/here"_s, {});
        WizardDriver wizard;
        wizard.passStartPage(u"p"_s, suite.path(u"work/a%E"_s), u"T"_s);
        wizard.press(QWizard::NextButton);
        QTRY_VERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled());
        QVERIFY2(wizard.output().contains("holds %E"_L1), qPrintable(wizard.output()));
    }

    void tellsOfDefinitionsThatBreakOff()
    {
        Installation suite;
        startSuite(suite, {}, "<a></b>");
        const WizardDriver wizard;
        const QString said = wizard.labels().filter(u"settings.xml:3:"_s).join(u'\n');
        QVERIFY2(!said.isEmpty(), qPrintable(wizard.labels().join(u'\n')));
        suite.define("<projectCreator><name>T</name></projectCreator>");
        suite.start();
        const WizardDriver good;
        QCOMPARE(good.labels().filter(u"settings.xml"_s), QStringList());
    }

    // A result of an earlier conversion's daemon would be taken for that of the next.
    void stopsWhatWasDetached()
    {
        StrayProcesses::adopt();
        for (const bool byBack : {false, true}) {
            Installation suite;
            startSuite(suite,
                       "start-session { mark $1.pid; pause 2000; write $1 STALE }; await $1.pid; print running; hang");
            WizardDriver wizard;
            convert(wizard, suite);
            QTRY_VERIFY(wizard.output().contains("running"_L1));
            const QByteArray daemon = suite.read(u"work/p.prj.pid"_s);
            QVERIFY(Installation::isAlive(daemon));
            byBack ? wizard.press(QWizard::BackButton) : wizard.button(u"&Stop"_s).click();
            QVERIFY(!Installation::isAlive(daemon));
            QVERIFY(!QFile::exists(wizard.window.ProjectFile()));
        }
    }
};

KOVRA_TEST(ConversionWarningTest)
#include "ConversionWarningTest.moc"

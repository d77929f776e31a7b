// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Installation.h"
#include "TestMain.h"
#include "wizard/PageSequence.h"
#include "WizardDriver.h"

#include <QAction>
#include <QTest>

using namespace Qt::StringLiterals;

class FollowUpPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksBeforeItStopsTools()
    {
        Installation suite;
        const auto script = [&](const QString& name, const QByteArray& body) {
            return "<exe>" + suite.writeScript(name, body).toUtf8() + "</exe>";
        };
        suite.define("<projectCreator><name>T</name><orvcppProject>1</orvcppProject><inputData/>" +
                     script(u"convert"_s, "echo x > \"$1\"") +
                     "<exeargs>%PF</exeargs></projectCreator><applicationPage><application name='Long'>" +
                     script(u"long"_s, "echo $$ > \"$0.pid\"; exec sleep 1000") +
                     "</application><application name='Text'>" + script(u"text"_s, "echo hello") +
                     "<displayoutput>text</displayoutput></application></applicationPage>");
        const AppRegistry& registry = suite.start();
        WizardDriver wizard;
        const auto convert = [&] {
            wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"T"_s);
            wizard.press(QWizard::NextButton);
            QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        };
        convert();
        QAbstractButton& tool = wizard.button(u"Long"_s);
        QByteArray child;
        const auto launch = [&] {
            suite.write(u"long.pid"_s, "");
            tool.click();
            QTRY_VERIFY((child = suite.read(u"long.pid"_s)).size() > 1);
        };
        BoxAnswers boxes({QMessageBox::No, QMessageBox::No, QMessageBox::No, QMessageBox::Yes, QMessageBox::Yes});
        launch();
        wizard.window.close();
        wizard.press(QWizard::FinishButton);
        wizard.window.reject();
        QCOMPARE(boxes.texts,
                 QStringList(3, u"Child Applications Still Running|Closing this application will kill child "
                                "applications.\nDo you wish to close this application?"_s));
        QVERIFY(wizard.window.isVisible() && Installation::isAlive(child));

        // Stop in its menu ends it without a word.
        QVERIFY(tool.text().endsWith("running..."_L1));
        tool.actions().constFirst()->trigger();
        QTRY_VERIFY(!Installation::isAlive(child) && tool.text() == "Long"_L1);
        QCOMPARE(boxes.texts.size(), 3);

        // A new conversion closes the windows of the old one, and then there is nothing left to ask about.
        wizard.button(u"Text"_s).click();
        QTRY_COMPARE(registry.openDialogs.size(), 1);
        wizard.window.button(QWizard::CustomButton1)->click();
        QVERIFY(!registry.openDialogs[0]->isVisible());
        convert();
        QCOMPARE(boxes.texts.size(), 4);
        launch();
        wizard.window.reject();
        QCOMPARE(boxes.texts.size(), 5);
        QVERIFY(!wizard.window.isVisible() && !Installation::isAlive(child));
    }
};

KOVRA_TEST(FollowUpPageTest)
#include "FollowUpPageTest.moc"

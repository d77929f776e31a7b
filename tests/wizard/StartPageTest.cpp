// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Installation.h"
#include "TestMain.h"
#include "wizard/PageSequence.h"
#include "WizardDriver.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class StartPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhichDefinitionsAreMissing_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("empty") << QByteArray(" ");
        QTest::newRow("not XML") << QByteArray("int main() {}");
        QTest::newRow("truncated") << QByteArray("<settings><projectCreat");
    }

    void saysWhichDefinitionsAreMissing()
    {
        QFETCH(const QByteArray, contents);
        Installation suite;
        const QString name = suite.path(u"<b>bold.xml"_s);
        if (!contents.isEmpty()) {
            suite.write(u"<b>bold.xml"_s, contents);
        }
        suite.start({u"-file"_s, name});
        const WizardDriver wizard;
        const QString text = wizard.labels().join(u' ');
        QVERIFY2(text.contains(u"<font color='red'>"_s) && text.contains(name.toHtmlEscaped()), qPrintable(text));
        wizard.edit(u"Name of project to be created:"_s).setText(u"name"_s);
        QVERIFY(!wizard.canGoOn());
    }

    void asksBeforeItTouchesAnything()
    {
        Installation suite;
        suite.define("<projectCreator><name>One</name><inputData/></projectCreator>"
                     "<projectCreator><name>Two</name><inputData/><orvcProject>1</orvcProject></projectCreator>");
        suite.start();
        const WizardDriver wizard;
        QVERIFY(!wizard.canGoOn());
        const QString folder = suite.path(u"work/new/deep"_s);
        const QString project = folder + u"/p.prj"_s;
        {
            BoxAnswers boxes({QMessageBox::No});
            wizard.passStartPage(u"p"_s, folder, u"Two"_s);
            QCOMPARE(boxes.texts, QStringList{u"Directory does not exist|The selected location for the new project "
                                              "file does not exist.\nDo you wish to create this directory?\n"_s});
            QVERIFY(!QFile::exists(folder) && wizard.window.currentId() == StartPageId);
            // The choices are kept although the page was refused.
            QCOMPARE(wizard.window.conversion, u"Two"_s);
        }
        {
            BoxAnswers boxes({QMessageBox::Yes});
            wizard.press(QWizard::NextButton);
            QCOMPARE(boxes.texts.size(), 1);
        }
        // Only the C analyser serves this type, so nobody is asked which.
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QVERIFY(wizard.window.isORVC && QDir(folder).isEmpty());

        wizard.press(QWizard::BackButton);
        suite.write(u"work/new/deep/p.prj"_s, "precious");
        {
            BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes});
            wizard.press(QWizard::NextButton);
            QCOMPARE(boxes.texts,
                     QStringList{u"Project file already exists|Do you want to overwrite this file?\n"_s + project});
            QCOMPARE(wizard.window.currentId(), int(StartPageId));
            wizard.press(QWizard::NextButton);
            QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        }
        QCOMPARE(suite.read(u"work/new/deep/p.prj"_s), QByteArray("precious"));
        wizard.press(QWizard::BackButton);

        suite.write(u"work/file"_s, "");
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Ok});
        wizard.passStartPage(u"p"_s, suite.path(u"work/file/below"_s), u"One"_s);
        QCOMPARE(boxes.texts.at(1), u"Directory does not exist|The selected location can not be created.\n"_s);
        QDir(suite.path(u"work"_s)).mkdir(u"folder.prj"_s);
        wizard.passStartPage(u"folder"_s, suite.path(u"work"_s), u"One"_s);
        QCOMPARE(boxes.texts.at(3),
                 u"Project File can not be created|Can not overwrite file:\n"_s + suite.path(u"work/folder.prj"_s));
        wizard.passStartPage(u"no/such"_s, suite.path(u"work"_s), u"One"_s);
        QCOMPARE(boxes.texts.at(4),
                 u"Project File can not be created|Can not create file:\n"_s + suite.path(u"work/no/such.prj"_s));
        QCOMPARE(wizard.window.currentId(), int(StartPageId));
    }

    void finishesWhereNothingFollows()
    {
        Installation suite;
        suite.define("<projectCreator><name>Bare</name><orvcProject>1</orvcProject></projectCreator>"
                     "<projectCreator><name>Full</name><orvcProject>1</orvcProject><inputData/></projectCreator>");
        suite.start();
        const WizardDriver wizard;
        const QAbstractButton& finish = *wizard.window.button(QWizard::FinishButton);
        const QAbstractButton& next = *wizard.window.button(QWizard::NextButton);
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"Bare"_s);
        QVERIFY(finish.isVisible() && finish.isEnabled() && !next.isVisible());
        // Another type leads on again, and nothing was torn down in between.
        wizard.combo(u"Original project type:"_s).setCurrentText(u"Full"_s);
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QVERIFY(!finish.isVisible());
        wizard.press(QWizard::BackButton);
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"Bare"_s);
        wizard.press(QWizard::FinishButton);
        QCOMPARE(wizard.window.result(), int(QDialog::Accepted));
    }

    void asksForTheAnalyserWhenItIsOpen()
    {
        Installation suite;
        suite.define("<projectCreator><name>One</name><inputData/></projectCreator>");
        suite.start();
        {
            const WizardDriver wizard;
            wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"One"_s);
            QCOMPARE(wizard.window.currentId(), int(SetProductPageId));
            // Nothing was remembered yet, so C++ is preselected.
            QVERIFY(wizard.button(u"Orv C++ [Project contains 'C++' Code]"_s).isChecked());
            wizard.button(u"Orv C [Project is 'C' Code Only]"_s).click();
            wizard.press(QWizard::NextButton);
            QVERIFY(wizard.window.isORVC);
            QCOMPARE(wizard.window.defaultPersonalityLocation, suite.path(u"orvc/personalities"_s));
        }
        qputenv("ORVCPATH", "");
        qputenv("ORVCPPPATH", "");
        suite.start();
        const WizardDriver wizard;
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"One"_s);
        const auto windows = QApplication::topLevelWidgets();
        const auto warning = std::ranges::find_if(
            windows, [](const QWidget* widget) { return widget->inherits("QGroupBox") && widget->isVisible(); });
        QVERIFY(warning != windows.end() && !(*warning)->testAttribute(Qt::WA_QuitOnClose));
    }
};

KOVRA_TEST(StartPageTest)
#include "StartPageTest.moc"

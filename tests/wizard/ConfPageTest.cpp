// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Installation.h"
#include "TestMain.h"
#include "wizard/PageSequence.h"
#include "WizardDriver.h"

#include <QClipboard>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString compiler = u"Compiler Configuration File:"_s;
const QString message = u"Message Configuration File:"_s;

void defineSuite(const Installation& suite)
{
    suite.write(u"orvc/personalities/c.p_c"_s, "-xcase+\n");
    suite.write(u"orvc/personalities/c.p_s"_s, "-threshold 1\n");
    suite.write(u"orvc/personalities/module.p_c"_s, "-ss+\n");
    suite.write(u"orvcpp/personalities/cpp.p_c"_s, "-rvaluerefbind+\n");
    suite.define(
        R"(<projectCreator><name>T</name><orvcProject>1</orvcProject><orvcppProject>1</orvcppProject><exe>true</exe>
        <inputData/>
        <compilerPersonality TYPE="C">%ORVC%/personalities/c.p_c</compilerPersonality>
        <compilerPersonality TYPE="CPP">%ORVCPP%/personalities/cpp.p_c</compilerPersonality>
        <messagePersonality TYPE="C">%ORVC%/personalities/c.p_s</messagePersonality></projectCreator>
      <compliance_module><name>Module</name><location>%ORVC%</location>
        <compilerpersonality>%ORVC%/personalities/module.p_c</compilerpersonality>
        <messagepersonality>%ORVC%/personalities/gone.p_s</messagepersonality></compliance_module>
      <compliance_module><name>Not installed</name><location>/nowhere</location></compliance_module>
      <compliance_module><product>ORVCPP</product><name>Other analyser</name><location>/</location></compliance_module>)");
}

void passToConfiguration(const WizardDriver& wizard, const Installation& suite, bool isC)
{
    wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"T"_s);
    wizard.button(isC ? u"Orv C [Project is 'C' Code Only]"_s : u"Orv C++ [Project contains 'C++' Code]"_s).click();
    wizard.press(QWizard::NextButton);
    wizard.press(QWizard::NextButton);
    QCOMPARE(wizard.window.currentId(), int(ConfPageId));
}

} // namespace

class ConfPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesTheOtherAnalysersFile()
    {
        Installation suite;
        defineSuite(suite);
        suite.start();
        const WizardDriver wizard;
        passToConfiguration(wizard, suite, true);
        QCOMPARE(wizard.window.currentPage()->title(), u"Orv C Configuration Information"_s);
        QVERIFY(!wizard.has(u"Project Configuration Template File:"_s));
        QLineEdit& field = wizard.edit(compiler);
        const QString own = suite.path(u"orvc/personalities/c.p_c"_s);
        QCOMPARE(field.text(), own);
        const QString foreign = suite.path(u"orvcpp/personalities/cpp.p_c"_s);

        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok});
        field.selectAll();
        QApplication::clipboard()->setText(foreign);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(boxes.texts,
                 QStringList{u"Incorrect Configuration File Selected|A Orv C++ configuration file can not be "
                             "selected when using the Orv C analyser"_s});
        QCOMPARE(field.text(), own);
        // Letter by letter: what is typed on the way is kept, the whole path is not.
        field.selectAll();
        QTest::keyClicks(&field, foreign);
        QCOMPARE(boxes.texts.size(), 2);
        QCOMPARE(field.text(), foreign.chopped(1));
        QVERIFY(!wizard.canGoOn());
        QVERIFY(wizard.labels().contains(u"To continue, name an existing file as \"Compiler Configuration File\"."_s));
        // The previous value may have become wrong on disk: still one box.
        field.setText(own);
        suite.write(u"orvc/personalities/c.p_c"_s, "-rvaluerefbind+\n");
        field.setText(foreign);
        QCOMPARE(boxes.texts.size(), 3);
        QCOMPARE(field.text(), own);
        suite.write(u"orvc/personalities/c.p_c"_s, "-xcase+\n");
        QVERIFY(wizard.canGoOn());

        // The other analyser gets its own default instead of what was chosen for this one.
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::BackButton);
        passToConfiguration(wizard, suite, false);
        QCOMPARE(wizard.edit(compiler).text(), foreign);
        QCOMPARE(boxes.texts.size(), 3);
    }

    void modulesFillAndLock()
    {
        Installation suite;
        defineSuite(suite);
        suite.start();
        const WizardDriver wizard;
        passToConfiguration(wizard, suite, true);
        QComboBox& modules = wizard.combo(u"Compliance Modules:"_s);
        QCOMPARE(modules.count(), 2);
        modules.setCurrentText(u"Module"_s);
        QCOMPARE(wizard.edit(compiler).text(), suite.path(u"orvc/personalities/module.p_c"_s));
        QVERIFY(wizard.edit(compiler).isReadOnly());
        // A file that is missing is named, but can be replaced.
        QCOMPARE(wizard.edit(message).text(), suite.path(u"orvc/personalities/gone.p_s"_s));
        QVERIFY(!wizard.edit(message).isReadOnly() && !wizard.canGoOn());
        modules.setCurrentIndex(0);
        QVERIFY(!wizard.edit(compiler).isReadOnly());
        QCOMPARE(wizard.edit(compiler).text(), suite.path(u"orvc/personalities/module.p_c"_s));
        wizard.edit(message).clear();
        wizard.edit(message).setText(suite.path(u"orvc/personalities/c.p_s"_s));
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.compilerPersonality, suite.path(u"orvc/personalities/module.p_c"_s));
        QCOMPARE(wizard.window.messagePersonality, suite.path(u"orvc/personalities/c.p_s"_s));
    }
};

KOVRA_TEST(ConfPageTest)
#include "ConfPageTest.moc"

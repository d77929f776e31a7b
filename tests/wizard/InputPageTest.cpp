// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Installation.h"
#include "TestMain.h"
#include "wizard/PageSequence.h"
#include "WizardDriver.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray everyKind = R"(
    <projectCreator><name>All kinds</name><exe>true</exe><exeargs>%F %D %G %R %CC %E</exeargs>
      <orvcProject>1</orvcProject><orvcppProject>1</orvcppProject>
      <inputData><displayName>Source</displayName><inputType>FILE</inputType><mustBeSet>FILE_MUST_EXIST</mustBeSet>
        <argDef>%F</argDef></inputData>
      <inputData><displayName>Folder</displayName><inputType>DIR</inputType><argDef>%D</argDef></inputData>
      <inputData><displayName>Extras</displayName><inputType SEP="," COLUMNS="3">GROUP</inputType><argDef>%G</argDef>
        <inputData><displayName>A</displayName><inputType OUT_STR="-a">CHECK</inputType></inputData>
        <inputData><displayName>B</displayName><inputType OUT_STR="-b">CHECK</inputType><defaultValue>1</defaultValue></inputData>
        <inputData><displayName>Word</displayName><inputType>EDIT</inputType></inputData>
      </inputData>
      <inputData><displayName>This</displayName><inputType>RADIO</inputType><defaultValue>1</defaultValue></inputData>
      <inputData><displayName>That</displayName><inputType>RADIO</inputType><argDef>%R</argDef></inputData>
      <inputData><displayName>C only</displayName><inputType TYPE="C_ONLY">CHECK</inputType><argDef>%CC</argDef></inputData>
      <inputData><displayName>Standard</displayName><inputType>EDIT</inputType><mustBeSet>1</mustBeSet><argDef>%E</argDef>
        <hoverHelp>x &lt;b&gt;y&lt;/b&gt;</hoverHelp><defaultValue TYPE="C">c99</defaultValue>
        <defaultValue TYPE="CPP">c++17</defaultValue></inputData>
    </projectCreator>)";

void chooseAnalyser(const WizardDriver& wizard, const QString& label)
{
    QCOMPARE(wizard.window.currentId(), int(SetProductPageId));
    wizard.button(label).click();
    wizard.press(QWizard::NextButton);
    QCOMPARE(wizard.window.currentId(), int(XmlPageId));
}

QStringList values(const WizardDriver& wizard)
{
    QStringList texts;
    for (const auto& input : wizard.window.projectCreator->inputData) {
        texts += input->value;
    }
    return texts;
}

} // namespace

class InputPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void collectsEveryKind()
    {
        Installation suite;
        suite.define(everyKind);
        const QString source = suite.write(u"work/make file"_s, "");
        suite.start();
        {
            WizardDriver wizard;
            wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"All kinds"_s);
            chooseAnalyser(wizard, u"Orv C++ [Project contains 'C++' Code]"_s);
            QVERIFY(!wizard.has(u"C only"_s));
            QCOMPARE(wizard.edit(u"Standard"_s).text(), u"c++17"_s);
            QVERIFY(!wizard.edit(u"Standard"_s).toolTip().contains("<b>"_L1));
            QVERIFY(wizard.button(u"B"_s).isChecked() && wizard.button(u"This"_s).isChecked());

            QVERIFY(!wizard.canGoOn());
            QVERIFY(wizard.labels().contains(u"To continue, name an existing file or folder in \"Source\"."_s));
            QTest::keyClicks(&wizard.edit(u"Source"_s), source + u'x');
            QVERIFY(!wizard.canGoOn());
            QTest::keyClick(&wizard.edit(u"Source"_s), Qt::Key_Backspace);
            QVERIFY(wizard.canGoOn());
            wizard.edit(u"Standard"_s).setText(u"  "_s);
            QVERIFY(!wizard.canGoOn());

            wizard.press(QWizard::BackButton);
            chooseAnalyser(wizard, u"Orv C [Project is 'C' Code Only]"_s);
            QCOMPARE(wizard.edit(u"Standard"_s).text(), u"c99"_s);
            wizard.edit(u"Source"_s).setText(source);
            wizard.edit(u"Folder"_s).setText(suite.path(u"work"_s));
            wizard.button(u"A"_s).click();
            wizard.edit(u"Word"_s).setText(u"w"_s);
            wizard.button(u"That"_s).click();
            QVERIFY(!wizard.button(u"This"_s).isChecked());
            wizard.button(u"C only"_s).click();
            wizard.press(QWizard::NextButton);
            QCOMPARE(wizard.window.currentId(), int(ActionPageId));
            QCOMPARE(values(wizard),
                     (QStringList{source, suite.path(u"work"_s), u"-a,-b,w"_s, u"0"_s, u"1"_s, u"1"_s, u"c99"_s}));
            QTRY_VERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled());
            wizard.press(QWizard::FinishButton);
        }
        // The next start brings everything back.
        suite.start();
        {
            WizardDriver wizard;
            QCOMPARE(wizard.combo(u"Original project type:"_s).currentText(), u"All kinds"_s);
            QCOMPARE(wizard.edit(u"Location for new project file:"_s).text(), suite.path(u"work"_s));
            QVERIFY(wizard.window.isORVC);
            wizard.press(QWizard::NextButton);
            wizard.press(QWizard::NextButton);
            QCOMPARE(wizard.edit(u"Source"_s).text(), source);
            QCOMPARE(wizard.edit(u"Word"_s).text(), u"w"_s);
            QVERIFY(wizard.button(u"A"_s).isChecked() && wizard.button(u"That"_s).isChecked() &&
                    wizard.button(u"C only"_s).isChecked());
            // Cancel keeps what was kept before.
            wizard.edit(u"Word"_s).setText(u"other"_s);
            wizard.press(QWizard::NextButton);
            QTRY_VERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled());
            wizard.window.reject();
        }
        suite.start();
        WizardDriver wizard;
        QCOMPARE(appRegistry->definitions.projectCreators.at(0)->inputData.at(2)->children.at(2)->value, u"w"_s);
    }
};

KOVRA_TEST(InputPageTest)
#include "InputPageTest.moc"

// SPDX-License-Identifier: MIT
#include "SystemCalls.h"
#include "TestMain.h"
#include "wizard/FolderMemory.h"
#include "WizardDriver.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QCompleter>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

const QString compiler = u"Compiler Configuration File:"_s;
const QString cAnalyser = u"Orv C [Project is 'C' Code Only]"_s;
const QString cppAnalyser = u"Orv C++ [Project contains 'C++' Code]"_s;
const QString message = u"Message Configuration File:"_s;

/// Has a type with every kind of input and with configuration files.
class Suite : public Installation
{
public:
    Suite()
    {
        writeChild(u"bin/show"_s, "print $*");
        define(R"(<projectCreator><name>T</name><exe>show</exe><exeargs>%F %D %G %R %CC %E</exeargs>
        <orvcProject>1</orvcProject><orvcppProject>1</orvcppProject>
        <compilerPersonality TYPE="C">%ORVC%/personalities/c.p_c</compilerPersonality>
        <compilerPersonality TYPE="CPP">%ORVCPP%/personalities/cpp.p_c</compilerPersonality>
        <messagePersonality TYPE="C">%ORVC%/personalities/c.p_s</messagePersonality>
        <inputData><displayName>Source</displayName><inputType>FILE</inputType><argDef>%F</argDef>
          <mustBeSet>FILE_MUST_EXIST</mustBeSet></inputData>
        <inputData><displayName>Folder</displayName><inputType>DIR</inputType><argDef>%D</argDef></inputData>
        <inputData><displayName>Extras</displayName><inputType SEP=",">GROUP</inputType><argDef>%G</argDef>
          <inputData><displayName>A</displayName><inputType OUT_STR="-a">CHECK</inputType></inputData>
          <inputData><displayName>B</displayName><inputType OUT_STR="-b">CHECK</inputType>
            <defaultValue>1</defaultValue></inputData>
          <inputData><displayName>Word</displayName><inputType>EDIT</inputType></inputData></inputData>
        <inputData><displayName>This</displayName><inputType>RADIO</inputType><defaultValue>1</defaultValue></inputData>
        <inputData><displayName>That</displayName><inputType>RADIO</inputType><argDef>%R</argDef></inputData>
        <inputData><displayName>C only</displayName><inputType TYPE="C_ONLY">CHECK</inputType>
          <argDef>%CC</argDef></inputData>
        <inputData><displayName>C folder</displayName><inputType TYPE="C_ONLY">DIR</inputType></inputData>
        <inputData><displayName>Standard</displayName><inputType>EDIT</inputType><mustBeSet>1</mustBeSet>
          <argDef>%E</argDef><hoverHelp>x &lt;b&gt;y&lt;/b&gt;</hoverHelp>
          <defaultValue TYPE="C">c99</defaultValue><defaultValue TYPE="CPP">c++17</defaultValue></inputData>
      </projectCreator>
      <compliance_module><name>Module</name><location>%ORVC%</location>
        <compilerpersonality>%ORVC%/personalities/module.p_c</compilerpersonality>
        <messagepersonality>%ORVC%/personalities/gone.p_s</messagepersonality></compliance_module>
      <compliance_module><name>Foreign</name><location>%ORVC%</location>
        <compilerpersonality>%ORVCPP%/personalities/cpp.p_c</compilerpersonality></compliance_module>
      <compliance_module><name>Not installed</name><location>/nowhere</location></compliance_module>
      <compliance_module><product>ORVCPP</product><name>Other</name><location>/</location></compliance_module>)");
        start();
    }

    void passToInputs(const WizardDriver& wizard, bool isC) const
    {
        wizard.passStartPage(u"p"_s, path(u"work"_s), u"T"_s);
        wizard.button(isC ? cAnalyser : cppAnalyser).click();
        wizard.press(QWizard::NextButton);
    }

    /// Changes every kind of input.
    void enter(const WizardDriver& wizard) const
    {
        wizard.edit(u"Source"_s).setText(source);
        wizard.edit(u"Folder"_s).setText(nativePath(u"work"_s));
        wizard.edit(u"Word"_s).setText(u"w"_s);
        for (const QString& name : {u"A"_s, u"That"_s, u"C only"_s}) {
            wizard.button(name).click();
        }
    }

    void passInputs(const WizardDriver& wizard, bool isC, int next = ConfPageId) const
    {
        passToInputs(wizard, isC);
        wizard.edit(u"Source"_s).setText(source);
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), next);
    }

    QString written(const QString& name, const QByteArray& contents) const
    {
        return QDir::toNativeSeparators(write(name, contents));
    }

    const QString source = written(u"work/make file"_s, "");
    const QString own = written(u"orvc/personalities/c.p_c"_s, "-xcase+\n* <i>größe</i>\n");
    const QString ofModule = written(u"orvc/personalities/module.p_c"_s, "-ss+\n");
    const QString ofMessages = written(u"orvc/personalities/c.p_s"_s, "-threshold 1\n");
    const QString foreign = written(u"orvcpp/personalities/cpp.p_c"_s, "-rvaluerefbind+\n");
};

} // namespace

class FieldPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheInputsOfItsAnalyser()
    {
        const Suite suite;
        const WizardDriver wizard;
        suite.passToInputs(wizard, true);
        QVERIFY(wizard.has(u"C only"_s));
        QVERIFY(wizard.has(u"Browse: C folder"_s));
        wizard.press(QWizard::BackButton);
        wizard.button(cppAnalyser).click();
        wizard.press(QWizard::NextButton);
        QVERIFY(!wizard.has(u"C only"_s));
        // Its buttons go with the field.
        QVERIFY(!wizard.has(u"C folder"_s));
        QVERIFY(!wizard.has(u"Browse: C folder"_s));
        QCOMPARE(wizard.edit(u"Standard"_s).text(), u"c++17"_s);
        QVERIFY(!wizard.edit(u"Standard"_s).toolTip().contains("<b>"_L1));
        QCOMPARE(wizard.checked(), (QStringList{u"B"_s, u"This"_s}));
    }

    void marksWhatIsMissing()
    {
        const Suite suite;
        const WizardDriver wizard;
        suite.passToInputs(wizard, false);
        // It is not scrolled away with the inputs.
        const QString hint = u"To continue, name an existing file or folder in \"Source\"."_s;
        QCOMPARE(controlCalled<QLabel>(*wizard.window.currentPage(), hint).parentWidget(), wizard.window.currentPage());
        QLineEdit& source = wizard.edit(u"Source"_s);
        const auto colour = [&source] { return source.palette().color(source.foregroundRole()); };
        QTest::keyClicks(&source, suite.source + u'x');
        QVERIFY(!wizard.canGoOn());
        QCOMPARE(colour(), QColor(Qt::red));
        QTest::keyClick(&source, Qt::Key_Backspace);
        QVERIFY(wizard.canGoOn());
        QVERIFY(colour() != QColor(Qt::red));
        wizard.edit(u"Standard"_s).setText(u"  "_s);
        QVERIFY(!wizard.canGoOn());
    }

    void collectsEveryKind()
    {
        const Suite suite;
        const WizardDriver wizard;
        suite.passToInputs(wizard, false);
        QLineEdit& source = wizard.edit(u"Source"_s);
        source.setText(suite.source);
        wizard.button(u"A"_s).click();
        // Going back loses nothing; what nobody changed follows the analyser.
        wizard.press(QWizard::BackButton);
        wizard.button(cAnalyser).click();
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.focusWidget(), &wizard.button(cAnalyser));
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.edit(u"Standard"_s).text(), u"c99"_s);
        QCOMPARE(source.text(), suite.source);
        QCOMPARE(wizard.checked(), (QStringList{u"A"_s, u"B"_s, u"This"_s}));
        wizard.button(u"A"_s).click();
        suite.enter(wizard);
        QCOMPARE(wizard.checked(), (QStringList{u"A"_s, u"B"_s, u"That"_s, u"C only"_s}));
        wizard.press(QWizard::NextButton);
        wizard.press(QWizard::NextButton);
        QTRY_VERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled());
        QCOMPARE(wizard.output().section(u'\n', 2, 2),
                 u"%1 %2 -a,-b,w 1 1 c99"_s.arg(suite.source, suite.path(u"work"_s)));
    }

    void bringsBackWhatWasEntered()
    {
        Suite suite;
        {
            const WizardDriver wizard;
            suite.passToInputs(wizard, true);
            suite.enter(wizard);
            wizard.press(QWizard::NextButton);
            wizard.press(QWizard::NextButton);
            QTRY_VERIFY(wizard.window.button(QWizard::FinishButton)->isEnabled());
            wizard.press(QWizard::FinishButton);
        }
        suite.start();
        {
            WizardDriver wizard;
            QCOMPARE(wizard.combo(u"Original project type:"_s).currentText(), u"T"_s);
            QCOMPARE(wizard.edit(u"Location for new project file:"_s).text(), suite.nativePath(u"work"_s));
            wizard.press(QWizard::NextButton);
            wizard.press(QWizard::NextButton);
            QCOMPARE(wizard.edit(u"Source"_s).text(), suite.source);
            QCOMPARE(wizard.checked(), (QStringList{u"A"_s, u"B"_s, u"That"_s, u"C only"_s}));
            // Cancel keeps what was kept before.
            wizard.edit(u"Word"_s).setText(u"other"_s);
            wizard.press(QWizard::NextButton);
            wizard.window.reject();
        }
        const auto& creators = suite.start().definitions.projectCreators;
        const WizardDriver wizard;
        QCOMPARE(creators.at(0)->inputData.at(2)->children.at(2)->value, u"w"_s);
    }

    void refusesTheOtherAnalysersFile()
    {
        const Suite suite;
        const WizardDriver wizard;
        suite.passInputs(wizard, true);
        QVERIFY(!wizard.has(u"Project Configuration Template File:"_s));
        QLineEdit& field = wizard.edit(compiler);
        QCOMPARE(field.text(), suite.own);

        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok});
        field.selectAll();
        QApplication::clipboard()->setText(suite.foreign);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(boxes.texts,
                 QStringList{u"Incorrect Configuration File Selected|A Orv C++ configuration file can not be "
                             "selected when using the Orv C analyser"_s});
        QCOMPARE(field.text(), suite.own);
        // Letter by letter: what is typed on the way is kept, the whole path is not.
        field.selectAll();
        QTest::keyClicks(&field, suite.foreign);
        QCOMPARE(boxes.texts.size(), 2);
        QCOMPARE(field.text(), suite.foreign.chopped(1));
        QVERIFY(!wizard.canGoOn());
        QVERIFY(wizard.labels().contains(u"To continue, name an existing file as \"Compiler Configuration File\"."_s));
        // The previous value may have become wrong on disk: still one box.
        field.setText(suite.own);
        suite.write(u"orvc/personalities/c.p_c"_s, "-rvaluerefbind+\n");
        field.setText(suite.foreign);
        QCOMPARE(boxes.texts.size(), 3);
        QCOMPARE(field.text(), suite.own);
        suite.write(u"orvc/personalities/c.p_c"_s, "-xcase+\n");
        QVERIFY(wizard.canGoOn());

        // The other analyser gets its own default instead of what was chosen for this one.
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::BackButton);
        suite.passInputs(wizard, false);
        QCOMPARE(wizard.edit(compiler).text(), suite.foreign);
        QCOMPARE(boxes.texts.size(), 3);
    }

    void fieldsOpenDialogs()
    {
        const Suite suite;
        WizardDriver wizard;
        suite.passInputs(wizard, true);
        // Alt+B is the wizard's Back, but in a field it is the field's Browse.
        QVERIFY(QTest::qWaitForWindowActive(&wizard.window));
        QTest::keyClick(&wizard.combo(u"Compliance Modules:"_s), Qt::Key_B, Qt::AltModifier);
        QTRY_COMPARE(wizard.window.currentId(), int(XmlPageId));
        wizard.press(QWizard::NextButton);
        const BoxAnswers dialogs({});
        QTest::keyClick(&wizard.edit(compiler), Qt::Key_B, Qt::AltModifier);
        QTRY_COMPARE(dialogs.texts, QStringList{u"Select Compiler Configuration Options"_s});
        wizard.button(u"Edit: Select Compiler Configuration Options"_s).click();
        QCOMPARE(dialogs.texts.last(), suite.own + u"|-xcase+\n* <i>größe</i>\n"_s);
    }

    void saysWhatItCanNotEdit_data()
    {
        const TestRows<QString, QString> row("name", "says");
        row("missing", u"gone"_s, u"Can not edit file, the file does not exist"_s);
        row("folder", u"work"_s, u"Can not open file"_s);
#ifdef Q_OS_UNIX
        row("pipe", u"pipe"_s, u"Can not open file"_s);
#endif
    }

    void saysWhatItCanNotEdit()
    {
        const auto [name, says] = fetched<QString, QString>("name", "says");
        const Suite suite;
        if (name == "pipe"_L1) {
            QCOMPARE(::mkfifo(qPrintable(suite.path(name)), 0600), 0);
        }
        const WizardDriver wizard;
        suite.passInputs(wizard, true);
        const BoxAnswers boxes({QMessageBox::Ok});
        wizard.edit(compiler).setText(suite.path(name));
        wizard.button(u"Edit: Select Compiler Configuration Options"_s).click();
        QCOMPARE(boxes.texts, QStringList{u"Edit failed|"_s + says});
        QVERIFY2(boxes.additions[0].startsWith(suite.nativePath(name)), qPrintable(boxes.additions[0]));
    }

    void modulesLockFields()
    {
        const Suite suite;
        WizardDriver wizard;
        suite.passInputs(wizard, true);
        QVERIFY(QTest::qWaitForWindowActive(&wizard.window));
        QComboBox& modules = wizard.combo(u"Compliance Modules:"_s);
        QLineEdit& field = wizard.edit(compiler);
        QCOMPARE(modules.count(), 3);
        modules.setCurrentText(u"Module"_s);
        QCOMPARE(field.text(), suite.ofModule);
        QVERIFY(field.isReadOnly());
        QVERIFY(!wizard.has(u"Browse: Select Compiler Configuration Options"_s));
        // Locked, it can still be looked into.
        BoxAnswers boxes({QMessageBox::Ok});
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_O, Qt::ControlModifier);
        QTRY_COMPARE(boxes.texts, QStringList{suite.ofModule + u"|-ss+\n"_s});
        // A file that is missing is named, but can be replaced.
        QCOMPARE(wizard.edit(message).text(), suite.nativePath(u"orvc/personalities/gone.p_s"_s));
        QVERIFY(!wizard.edit(message).isReadOnly());
        QVERIFY(!wizard.canGoOn());
        modules.setCurrentIndex(0);
        QVERIFY(!field.isReadOnly());
        QCOMPARE(field.text(), suite.ofModule);
        // One that is refused locks nothing.
        modules.setCurrentText(u"Foreign"_s);
        QCOMPARE(boxes.texts.size(), 2);
        QCOMPARE(field.text(), suite.ofModule);
        QVERIFY(!field.isReadOnly());
        // A blank around a path is no fault.
        wizard.edit(message).setText(u' ' + suite.ofMessages + u' ');
        QVERIFY(wizard.canGoOn());
        wizard.edit(message).setText(suite.ofMessages);
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.compilerPersonality, suite.ofModule);
        QCOMPARE(wizard.window.messagePersonality, suite.ofMessages);
    }

    void helpsWithPaths()
    {
        const Suite suite;
        const QString folder = suite.nativePath(u"work"_s);
        {
            WizardDriver wizard;
            suite.passToInputs(wizard, true);
            QVERIFY(QTest::qWaitForWindowActive(&wizard.window));
            QLineEdit& source = wizard.edit(u"Source"_s);
            source.setFocus();
            source.setText(folder);
            QTest::keyClicks(&source, QDir::toNativeSeparators(u"/make f"_s));
            QTRY_VERIFY(source.completer()->popup()->isVisible());
            QCOMPARE(source.completer()->currentCompletion(), suite.source);
            QTest::keyClick(source.completer()->popup(), Qt::Key_Escape);
            // A folder is there, but is no file; below the field stands so as soon as it is left.
            source.setText(folder);
            const QString fault = u"This is a folder, not a file."_s;
            QVERIFY(!wizard.labels().contains(fault));
            wizard.edit(u"Word"_s).setFocus();
            QTRY_VERIFY(wizard.labels().contains(fault));
            QCOMPARE(source.accessibleDescription(), fault);
        }
        FolderMemory memory(u"a/b"_s);
        QCOMPARE(memory.last(), QString());
        memory.choose(suite.path(u"work"_s));
        appRegistry->WriteRegistry();
        QCOMPARE(FolderMemory(u"a/b"_s).last(), suite.path(u"work"_s));
    }

    // With all files given there is nothing to ask for.
    void skipsTheFilesThatAreGiven()
    {
        const Suite suite;
        const WizardDriver wizard({u"-cp"_s, suite.own, u"-ap"_s, suite.own, u"-mp"_s, suite.ofMessages});
        suite.passInputs(wizard, true, ActionPageId);
    }
};

KOVRA_TEST(FieldPagesTest)
#include "FieldPagesTest.moc"

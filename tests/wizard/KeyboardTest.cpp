// SPDX-License-Identifier: MIT
#include "launchers/PageData.h"
#include "TestMain.h"
#include "WizardDriver.h"

#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// Has a converter, a type that needs an input, and one that leads nowhere.
class Suite : public Installation
{
public:
    Suite()
    {
        const QByteArray converter = writeChild(u"convert"_s, "write $1 $2").toUtf8();
        const QByteArray tool = writeChild(u"tool"_s, "write $0.ran").toUtf8();
        define("<projectCreator><name>T</name><exe>" + converter +
               "</exe><exeargs>%PF %E</exeargs><orvcProject>1</orvcProject><orvcppProject>1</orvcppProject>"
               "<compilerPersonality TYPE='C'>%ORVC%/c.p_c</compilerPersonality>"
               "<inputData><displayName>Optional</displayName><inputType>CHECK</inputType></inputData>"
               "<inputData><displayName>Needed</displayName><inputType>EDIT</inputType><mustBeSet>1</mustBeSet>"
               "<argDef>%E</argDef></inputData></projectCreator>"
               "<projectCreator><name>Nothing</name><orvcProject>1</orvcProject></projectCreator>"
               "<applicationPage><application name='Tool'><exe>" +
               tool + "</exe></application></applicationPage>");
        write(u"orvc/c.p_c"_s, "");
        start().values.useMessageViewerMessages = false;
    }
};

/// Presses keys as they come from the keyboard: to whatever has the focus.
class Keys
{
public:
    explicit Keys(const QWidget& wizard)
        : window(wizard)
    {
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    void type(const QString& text) const
    {
        for (const QChar letter : text) {
            QTest::keyClick(window.windowHandle(), letter.toLatin1());
        }
    }
    QString focus() const
    {
        const QWidget* focused = window.focusWidget();
        return !focused                              ? QString()
               : focused->accessibleName().isEmpty() ? focused->property("text").toString()
                                                     : focused->accessibleName();
    }

private:
    const QWidget& window;
};

} // namespace

class KeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // From the first page to a tool for the finished project.
    void walksTheWizard()
    {
        const Suite suite;
        WizardDriver wizard;
        QVERIFY(QTest::qWaitForWindowActive(&wizard.window));
        const Keys keys(wizard.window);
        QCOMPARE(keys.focus(), u"Name of project to be created:"_s);
        // Next waits for a name: its letter types nothing and chooses nothing.
        keys.press(Qt::Key_Tab);
        QCOMPARE(keys.focus(), u"Location for new project file:"_s);
        keys.press(Qt::Key_N, Qt::AltModifier);
        QCOMPARE(keys.focus(), u"Name of project to be created:"_s);
        keys.type(u"p"_s);
        keys.press(Qt::Key_Tab);
        keys.press(Qt::Key_A, Qt::ControlModifier);
        keys.type(suite.path(u"work"_s));
        keys.press(Qt::Key_Tab);
        QCOMPARE(keys.focus(), u"Browse: Select Directory"_s);
        keys.press(Qt::Key_Tab);
        keys.press(Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(wizard.window.currentId(), int(SetProductPageId));
        QCOMPARE(keys.focus(), u"Orv C++ [Project contains 'C++' Code]"_s);
        keys.press(Qt::Key_Up);
        keys.press(Qt::Key_Return);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QCOMPARE(keys.focus(), u"Optional"_s);
        keys.press(Qt::Key_Space);
        QVERIFY(wizard.button(u"Optional"_s).isChecked());
        keys.press(Qt::Key_Return);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QCOMPARE(keys.focus(), u"Needed"_s);
        keys.type(u"word"_s);
        keys.press(Qt::Key_B, Qt::AltModifier);
        QTRY_COMPARE(wizard.window.currentId(), int(SetProductPageId));
        keys.press(Qt::Key_Return);
        keys.press(Qt::Key_Return);
        QCOMPARE(wizard.window.currentId(), int(ConfPageId));
        keys.press(Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        QCOMPARE(suite.read(u"work/p.prj"_s), QByteArray("word\n"));
        QTRY_COMPARE(keys.focus(), u"Tool"_s);
        keys.press(Qt::Key_Space);
        QTRY_VERIFY(QFile::exists(suite.path(u"tool.ran"_s)));
        QTRY_VERIFY(!appRegistry->definitions.applicationPages.front()->ProgramsRunning());
        keys.press(Qt::Key_F, Qt::AltModifier);
        QTRY_COMPARE(wizard.window.result(), int(QDialog::Accepted));
    }

    void escapeSaysWhatItForgets()
    {
        const Suite suite;
        WizardDriver wizard;
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"T"_s);
        wizard.button(u"Orv C [Project is 'C' Code Only]"_s).click();
        wizard.press(QWizard::NextButton);
        wizard.edit(u"Needed"_s).setText(u"word"_s);
        wizard.press(QWizard::NextButton);
        wizard.press(QWizard::NextButton);
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        const BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes});
        QTest::keyClick(&wizard.window, Qt::Key_Escape);
        QVERIFY(wizard.window.isVisible());
        QVERIFY2(boxes.texts.value(0).contains("will be forgotten"_L1), qPrintable(boxes.texts.join(u'\n')));
        QTest::keyClick(&wizard.window, Qt::Key_Escape);
        QVERIFY(!wizard.window.isVisible());
    }

    void leadsToWhatIsWrong()
    {
        const Suite suite;
        WizardDriver wizard;
        QVERIFY(QTest::qWaitForWindowActive(&wizard.window));
        const Keys keys(wizard.window);
        suite.write(u"work/file"_s, {});
        const BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Ok});
        wizard.passStartPage(u"p"_s, suite.path(u"work/file/below"_s), u"T"_s);
        QCOMPARE(boxes.texts.size(), 2);
        QVERIFY2(boxes.additions.value(1).startsWith(suite.nativePath(u"work/file/below: Not a directory\n"_s)),
                 qPrintable(boxes.additions.join(u'\n')));
        QCOMPARE(keys.focus(), u"Location for new project file:"_s);
        wizard.passStartPage(u"no/such"_s, suite.path(u"work"_s), u"T"_s);
        QCOMPARE(boxes.texts.size(), 3);
        QCOMPARE(keys.focus(), u"Name of project to be created:"_s);
        // One that leads to no conversion says so before anybody presses Finish.
        const QString note = u"This project type declares nothing to convert: Finish closes the wizard, and no project "
                             "is created."_s;
        QVERIFY(!wizard.labels().contains(note));
        wizard.combo(u"Original project type:"_s).setCurrentText(u"Nothing"_s);
        QVERIFY(wizard.labels().contains(note));
    }
};

KOVRA_TEST(KeyboardTest)
#include "KeyboardTest.moc"

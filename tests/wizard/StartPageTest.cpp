// SPDX-License-Identifier: MIT
#include "TestMain.h"
#include "WizardDriver.h"

#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

class StartPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhichDefinitionsAreMissing()
    {
        for (const char* contents :
             {"", " ", "int main() {}", "<settings><projectCreat", "<settings><projectCreator><exe>no name</exe>"}) {
            Installation suite;
            const QString name = suite.path(u"&amp;.xml"_s);
            if (*contents != 0) {
                suite.write(u"&amp;.xml"_s, contents);
            }
            suite.start({u"-file"_s, name});
            const WizardDriver wizard;
            const QString text = wizard.labels().join(u' ');
            QVERIFY2(text.contains(u"<font color='red'>"_s), qPrintable(text));
            QVERIFY2(text.contains(name.toHtmlEscaped()), qPrintable(text));
            wizard.edit(u"Name of project to be created:"_s).setText(u"name"_s);
            QVERIFY(!wizard.canGoOn());
        }
    }

    void asksBeforeItTouchesAnything()
    {
        Installation suite;
        suite.define("<projectCreator><name>One</name><inputData/></projectCreator>"
                     "<projectCreator><name>Two</name><inputData/><orvcProject>1</orvcProject></projectCreator>");
        // A position that is not on any screen any more.
        suite.start().windowPos = QPoint(3000, 2000);
        const WizardDriver wizard;
        QVERIFY(wizard.window.screen()->availableGeometry().contains(wizard.window.geometry()));
        QCOMPARE(wizard.window.pixmap(QWizard::LogoPixmap).toImage(), QImage(u":/logo_shadow.jpg"_s));
        QVERIFY(!wizard.canGoOn());
        QVERIFY(wizard.labels().contains(u"To continue, name the project and its folder."_s));
        const QString folder = suite.nativePath(u"work/new/deep"_s);
        using enum QMessageBox::StandardButton;
        BoxAnswers boxes({No, Yes, No, Yes, Yes, Ok, Yes, Ok, Ok});
        wizard.passStartPage(u"p"_s, folder, u"Two"_s);
        QVERIFY(!QDir(folder).exists());
        QCOMPARE(wizard.window.currentId(), int(StartPageId));
        // The choices are kept although the page was refused.
        QCOMPARE(wizard.window.conversion, u"Two"_s);
        wizard.press(QWizard::NextButton);
        // Only the C analyser serves this type, so nobody is asked which.
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QVERIFY(wizard.window.isORVC);
        QVERIFY(QDir(folder).exists());
        QVERIFY(QDir(folder).isEmpty());

        wizard.press(QWizard::BackButton);
        suite.write(u"work/new/deep/p.prj"_s, "precious");
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), int(StartPageId));
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QCOMPARE(suite.read(u"work/new/deep/p.prj"_s), QByteArray("precious"));
        wizard.press(QWizard::BackButton);

        suite.write(u"work/file"_s, "");
        wizard.passStartPage(u"p"_s, suite.path(u"work/file/below"_s), u"One"_s);
        QDir(suite.path(u"work"_s)).mkdir(u"folder.prj"_s);
        wizard.passStartPage(u"folder"_s, suite.path(u"work"_s), u"One"_s);
        wizard.passStartPage(u"no/such"_s, suite.path(u"work"_s), u"One"_s);
        QCOMPARE(wizard.window.currentId(), int(StartPageId));
        const QString noFolder = u"Directory does not exist|The selected location "_s;
        const QString makeFolder =
            noFolder + u"for the new project file does not exist.\nDo you wish to create this directory?\n"_s;
        const QString overwrite = u"Project file already exists|Do you want to overwrite this file?\n"_s;
        const QString failed = u"Project File can not be created|Can not "_s;
        QCOMPARE(boxes.texts,
                 (QStringList{makeFolder, makeFolder, overwrite + suite.nativePath(u"work/new/deep/p.prj"_s),
                              overwrite + suite.nativePath(u"work/new/deep/p.prj"_s), makeFolder,
                              noFolder + u"can not be created.\n"_s, overwrite + suite.nativePath(u"work/folder.prj"_s),
                              failed + u"overwrite file:\n"_s + suite.nativePath(u"work/folder.prj"_s),
                              failed + u"create file:\n"_s + suite.nativePath(u"work/no/such.prj"_s)}));
    }

    void leadsWhereTheTypeLeads()
    {
        Installation suite;
        suite.define("<projectCreator><name>Bare</name><orvcProject>1</orvcProject></projectCreator>"
                     "<projectCreator><name>Bare, open</name></projectCreator>"
                     "<projectCreator><name>Full</name><orvcProject>1</orvcProject><inputData/></projectCreator>"
                     "<projectCreator><name>Full, open</name><inputData/></projectCreator>");
        suite.start();
        const WizardDriver wizard;
        const QAbstractButton& finish = *wizard.window.button(QWizard::FinishButton);
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"Full, open"_s);
        // Nothing was remembered yet, so C++ is preselected.
        QVERIFY(wizard.button(u"Orv C++ [Project contains 'C++' Code]"_s).isChecked());
        wizard.button(u"Orv C [Project is 'C' Code Only]"_s).click();
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QVERIFY(wizard.window.isORVC);
        QCOMPARE(wizard.window.defaultPersonalityLocation, suite.nativePath(u"orvc/personalities"_s));
        wizard.press(QWizard::BackButton);
        wizard.press(QWizard::BackButton);
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"Bare"_s);
        QVERIFY(finish.isVisible());
        QVERIFY(finish.isEnabled());
        QVERIFY(!wizard.window.button(QWizard::NextButton)->isVisible());
        // Another type leads on again, and nothing was torn down in between.
        wizard.combo(u"Original project type:"_s).setCurrentText(u"Full"_s);
        wizard.press(QWizard::NextButton);
        QCOMPARE(wizard.window.currentId(), int(XmlPageId));
        QVERIFY(!finish.isVisible());
        wizard.press(QWizard::BackButton);
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"Bare, open"_s);
        QCOMPARE(wizard.window.currentId(), int(SetProductPageId));
        wizard.press(QWizard::FinishButton);
        QCOMPARE(wizard.window.result(), int(QDialog::Accepted));
    }

    void saysThatNoAnalyserIsInstalled()
    {
        Installation suite;
        suite.define("<projectCreator><name>T</name><inputData/></projectCreator>");
        qputenv("ORVCPATH", "");
        qputenv("ORVCPPPATH", "");
        suite.start();
        const WizardDriver wizard;
        wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"T"_s);
        const auto windows = QApplication::topLevelWidgets();
        const auto warning = std::ranges::find_if(
            windows, [](const QWidget* widget) { return widget->inherits("QGroupBox") && widget->isVisible(); });
        QVERIFY(warning != windows.end());
        // It does not keep the program running.
        QVERIFY(!(*warning)->testAttribute(Qt::WA_QuitOnClose));
    }

    void saysWhichHelpIsMissing()
    {
        Installation suite;
        suite.write(u"help/wendle.adp"_s, "");
        suite.start();
        WizardDriver wizard;
        const BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok});
        // From the first press, and once per press, wherever the focus is.
        QTest::keyClick(&wizard.edit(u"Name of project to be created:"_s), Qt::Key_F1);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().startsWith("Assistant Error|The help page "_L1));
        wizard.window.ShowHelp();
        QTest::keyClick(&wizard.window, Qt::Key_Help);
        wizard.button(u"Help on this page"_s).click();
        QCOMPARE(boxes.texts.size(), 4);
    }

    void decidesTheAnalyser()
    {
        // Which analysers are available and installed, and which ones the type is for.
        const auto analyser = [](const QString& facts) {
            const QStringList words = facts.split(u' ');
            ProjectCreatorData creator;
            creator.orvcProject = words.contains("typeC"_L1);
            creator.orvcppProject = words.contains("typeCpp"_L1);
            WizardState state;
            state.projectCreator = &creator;
            state.cAvailable = words.contains("c"_L1);
            state.cppAvailable = words.contains("cpp"_L1);
            state.decideAnalyser(words.contains("cdir"_L1) ? u"/c"_s : QString(),
                                 words.contains("cppdir"_L1) ? u"/cpp"_s : QString());
            const QString decided = !state.analyserFixed ? u"open"_s : state.isORVC ? u"C"_s : u"C++"_s;
            return decided + (state.noAnalyserInstalled ? u" none"_s : QString());
        };
        QCOMPARE(analyser(u"c cpp cdir cppdir"_s), u"open"_s);
        QCOMPARE(analyser(u"c cpp cdir cppdir typeC typeCpp"_s), u"open"_s);
        QCOMPARE(analyser(u"c cpp cdir cppdir typeC"_s), u"C"_s);
        QCOMPARE(analyser(u"c cpp cdir cppdir typeCpp"_s), u"C++"_s);
        // Asked for counts before installed, and installed before the type.
        QCOMPARE(analyser(u"c cdir cppdir typeCpp"_s), u"C"_s);
        QCOMPARE(analyser(u"c cpp cppdir typeC"_s), u"C++"_s);
        QCOMPARE(analyser(u"cpp cdir typeCpp"_s), u"C"_s);
        QCOMPARE(analyser(u"typeCpp"_s), u"C++ none"_s);
        QCOMPARE(analyser({}), u"open none"_s);
    }
};

KOVRA_TEST(StartPageTest)
#include "StartPageTest.moc"

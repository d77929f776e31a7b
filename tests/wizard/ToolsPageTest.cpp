// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"
#include "launchers/PageData.h"
#include "process/StrayProcesses.h"
#include "TestMain.h"
#include "WizardDriver.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QByteArray project(const QByteArray& analyser)
{
    return "VersionTag 45\nStartProjectMarker\nname=p\nsourceDir=.\noutputDir=out\n"
           "messagePersonality=default string\nanalyserPersonality=default string\n"
           "compilerPersonality=default string\n*project=" +
           analyser + "\nmain.c\nEndContainedFilesMarker\nEndOfProjectFile\n";
}

/// Closes the wizard and agrees to all that it asks meanwhile, which is given.
QStringList close(QWidget& window)
{
    QStringList questions;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&questions] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            questions += box->windowTitle() + u'|' + box->informativeText();
            box->button(QMessageBox::Yes)->click();
        }
    });
    watch.start(10);
    window.close();
    return questions;
}

/// A suite with a conversion that runs a script, and one tool that says on what it was started.
void startWithTool(Installation& suite, const QByteArray& script)
{
    const QByteArray tool = suite.writeChild(u"tool"_s, "write $0.out $*").toUtf8();
    startSuite(suite, script,
               "<applicationPage><application name='Tool'><exe>" + tool +
                   "</exe><exeargs>%PF %Q</exeargs></application></applicationPage>")
        .values.useMessageViewerMessages = false;
}

} // namespace

class ToolsPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsItsProjectOnTheCommandLine()
    {
        const auto found = [](const QString& line) {
            return CommandLine::toolsProject(line.split(u' ')).value_or(u"none"_s);
        };
        QCOMPARE(found(u"program -prj x"_s), u"none"_s);
        QCOMPARE(found(u"program -c -tools x.prj"_s), u"x.prj"_s);
        QCOMPARE(found(u"program -tools"_s), QString());
        // The program's own name counts for nothing.
        QCOMPARE(found(u"-tools x"_s), u"none"_s);
    }

    void opensAProjectThatExists_data()
    {
        const TestRows<QString, QByteArray> row("name", "analyser");
        row("C", u"work/p.prj"_s, "ORVC");
        row("C++", u"work/p.prj"_s, "ORVCPP");
        row("name with dots", u"work/my.v2.prj"_s, "ORVC");
        row("another suffix", u"work/p.PRJ"_s, "ORVC");
        row("blanks and umlauts", u"wörk/my project.prj"_s, "ORVC");
    }

    void opensAProjectThatExists()
    {
        const auto [name, analyser] = fetched<QString, QByteArray>("name", "analyser");
        Installation suite;
        startWithTool(suite, "");
        const QString file = suite.write(name, project(analyser));
        ApplicationWindow window(u"t"_s, u"h"_s, {u"ProjectCreation"_s});
        QCOMPARE(window.openTools(QDir::current().relativeFilePath(file)).problem, QString());
        window.show();
        QCOMPARE(window.currentId(), int(DisplayOptionsPageId));
        QVERIFY(!window.button(QWizard::BackButton)->isVisible());
        QVERIFY(!findControl(*window.currentPage(), u"Show the &conversion's output..."_s));
        QVERIFY(findControl(*window.currentPage(), u"Project: "_s + suite.nativePath(name)));
        controlCalled<QPushButton>(*window.currentPage(), u"Tool"_s).click();
        QTRY_COMPARE(suite.read(u"tool.out"_s), suite.nativePath(name).toUtf8() + ' ' + analyser + '\n');

        // Another conversion begins where every conversion begins.
        window.button(QWizard::CustomButton1)->click();
        QCOMPARE(window.currentId(), int(StartPageId));
        QVERIFY(window.openedProject().isEmpty());
        QCOMPARE(window.startId(), int(StartPageId));
    }

    void saysWhyAProjectIsNotOpened_data()
    {
        const TestRows<QString, QString> row("name", "says");
        row("no name", {}, u"-tools: the name of a project file must follow."_s);
        row("missing", u"work/none.prj"_s, u" does not exist. "_s);
        row("folder", u"work"_s, u" is not a file. "_s);
        row("text", u"work/text.prj"_s, u" holds no project. "_s);
        row("empty", u"work/empty.prj"_s, u" holds no project. "_s);
        row("cut", u"work/cut.prj"_s, u" holds no project. "_s);
        row("no tools", u"work/p.prj"_s, u" declares no tools"_s);
    }

    void saysWhyAProjectIsNotOpened()
    {
        const auto [name, says] = fetched<QString, QString>("name", "says");
        Installation suite;
        startWithTool(suite, "");
        suite.write(u"work/text.prj"_s, "just text\n");
        suite.write(u"work/empty.prj"_s, "");
        suite.write(u"work/cut.prj"_s, "VersionTag 45\n");
        suite.write(u"work/p.prj"_s, project("ORVC"));
        if (says.endsWith(" tools"_L1)) {
            suite.define("");
            suite.start();
        }
        ApplicationWindow window(u"t"_s, u"h"_s, {u"ProjectCreation"_s});
        const QString file = name.isEmpty() ? QString() : suite.path(name);
        const QString problem = window.openTools(file).problem;
        QVERIFY2(problem.contains(says), qPrintable(problem));
        QVERIFY2(problem.contains(QDir::toNativeSeparators(file)), qPrintable(problem));
        QCOMPARE(window.startId(), int(StartPageId));
    }

    void showsTheProgressOfAConversion()
    {
        Installation suite;
        startWithTool(suite, "put '[1/3] first.c\r'; await $0.go; print [3/3] last.c; hang");
        WizardDriver wizard;
        convert(wizard, suite);
        const auto& bar = *wizard.window.currentPage()->findChild<QProgressBar*>();
        QCOMPARE(bar.maximum(), 0);
        QTRY_COMPARE(bar.text(), u"1 of 3"_s);
        QVERIFY(wizard.labels().contains(u"first.c"_s));
        suite.write(u"convert.go"_s, "");
        QTRY_COMPARE(bar.text(), u"3 of 3"_s);
        QVERIFY(wizard.labels().contains(u"last.c"_s));
        wizard.button(u"&Stop"_s).click();
        QTRY_VERIFY(wizard.output().contains("was stopped"_L1));
        QVERIFY(!bar.isVisible());
        // The next run begins anew.
        wizard.press(QWizard::BackButton);
        QFile::remove(suite.path(u"convert.go"_s));
        wizard.press(QWizard::NextButton);
        QTRY_COMPARE(bar.text(), u"1 of 3"_s);
        wizard.button(u"&Stop"_s).click();
    }

    void asksOnceBeforeClosing()
    {
        StrayProcesses::adopt();
        Installation suite;
        startWithTool(suite, "start-daemon { hang }; print started; hang");
        WizardDriver wizard;
        convert(wizard, suite);
        QTRY_VERIFY(wizard.output().contains("started"_L1));
#ifdef Q_OS_WIN
        // The job ends it with the conversion.
        const auto strays = u""_s;
#else
        const QString strays = u", a program that a tool has left running"_s;
#endif
        QCOMPARE(close(wizard.window), QStringList{u"Conversion in progress|Still open: T"_s + strays});
        QVERIFY(!wizard.window.isVisible());
        QVERIFY(!StrayProcesses::any());
    }

    void namesWhatStillRuns()
    {
        Installation suite;
        startWithTool(suite, "");
        suite.writeChild(u"tool"_s, "print started; hang");
        ApplicationWindow window(u"t"_s, u"h"_s, {u"ProjectCreation"_s});
        QCOMPARE(window.openTools(suite.write(u"work/p.prj"_s, project("ORVC"))).problem, QString());
        window.show();
        controlCalled<QPushButton>(*window.currentPage(), u"Tool"_s).click();
        QCOMPARE(close(window), QStringList{u"Child Applications Still Running|Still open: Tool"_s});
        QVERIFY(!window.isVisible());
    }
};

KOVRA_TEST(ToolsPageTest)
#include "ToolsPageTest.moc"

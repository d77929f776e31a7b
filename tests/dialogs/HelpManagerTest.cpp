// SPDX-License-Identifier: MIT
#include "dialogs/HelpManager.h"
#include "app/AppRegistry.h"
#include "dialogs/AssistantClient.h"
#include "dialogs/HelpCollection.h"
#include "dialogs/HelpViewer.h"
#include "Installation.h"
#include "TestMain.h"
#include "wizard/ApplicationWindow.h"

#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

void installHelp(const Installation& suite)
{
    QProcess::execute(u"cp"_s, {u"-R"_s, QStringLiteral(HELP_FOLDER "/."), suite.path(u"help"_s)});
    suite.write(u"home/wendleTools.xml"_s, "");
}

AppRegistry& startWithHelp(Installation& suite)
{
    AppRegistry& registry = suite.start();
    registry.installValues.readDocument("<x><y><wendleHelpFile>projectCreation.qhc</wendleHelpFile></y>"
                                        "<helpProfileStr>-collectionFile</helpProfileStr></x>");
    return registry;
}

} // namespace

class HelpManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsInstallValues()
    {
        StringValues values;
        values.readDocument("<any><deep><wendleHelpDir>h</wendleHelpDir></deep><zipFileExts>a</zipFileExts>"
                            "<zipFileExts>b c</zipFileExts><tarFilename>gtar</tarFilename><helpProfileStr>cut sh");
        QCOMPARE(values.helpDir, u"h"_s);
        QCOMPARE(values.helpFile, u"wendle.adp"_s);
        QCOMPARE(values.zipFileExts, QStringList{u"b c"_s});
        QCOMPARE(values.tarFilename, u"gtar"_s);
        QCOMPARE(values.helpProfileStr, u"-profile"_s);
    }

    void isAvailableWithAProfile()
    {
        Installation suite;
        AppRegistry& registry = startWithHelp(suite);
        QVERIFY(!HelpManager::HelpAvailable());
        installHelp(suite);
        QVERIFY(HelpManager::HelpAvailable());
        registry.values.helpArea.clear();
        QVERIFY(!HelpManager::HelpAvailable());
    }

    void findsPages()
    {
        Installation suite;
        installHelp(suite);
        const HelpCollection collection(suite.path(u"help/projectCreation.qhc"_s));
        const QUrl page = collection.find(suite.path(u"help/configuration.htm"_s));
        QCOMPARE(page, QUrl(u"qthelp://org.kovra.projectcreation/help/configuration.htm"_s));
        QVERIFY(collection.contents(page).contains("Incorrect Configuration File Selected"));
        const QString own = suite.write(u"help/own.htm"_s, "<p>own</p>");
        QCOMPARE(collection.find(own), QUrl::fromLocalFile(own));
        QVERIFY(collection.find(u"/nowhere.htm"_s).isEmpty());
        const QString namesake = suite.write(u"other/configuration.htm"_s, "<p>other</p>");
        QCOMPARE(collection.find(namesake), QUrl::fromLocalFile(namesake));
        // A broken profile still leaves the files.
        const HelpCollection broken(suite.write(u"help/broken.qhc"_s, "not a collection"));
        QCOMPARE(broken.find(own), QUrl::fromLocalFile(own));

        HelpViewer viewer(collection);
        viewer.showPage(page);
        QVERIFY(viewer.findChild<QTextBrowser*>()->toPlainText().startsWith("The configuration files"_L1));
    }

    void takesACollectionUnderTheDefaultName()
    {
        Installation suite;
        installHelp(suite);
        const QString profile = suite.path(u"help/wendle.adp"_s);
        QVERIFY(QFile::rename(suite.path(u"help/projectCreation.qhc"_s), profile));
        AppRegistry& registry = suite.start();
        QVERIFY(HelpManager::HelpAvailable());
        const HelpCollection collection(profile);
        QCOMPARE(collection.find(suite.path(u"help/startPage.htm"_s)).scheme(), u"qthelp"_s);
        QCOMPARE(HelpManager::ViewerArguments(collection), (QStringList{u"-collectionFile"_s, profile}));
        registry.installValues.helpProfileStr = u"-own"_s;
        QCOMPARE(HelpManager::ViewerArguments(collection), (QStringList{u"-own"_s, profile}));
    }

    void leavesAnOldProfileAlone()
    {
        Installation suite;
        for (const QByteArray& contents : {QByteArray("<assistantconfig/>"), QByteArray()}) {
            const QString profile = suite.write(u"help/wendle.adp"_s, contents);
            suite.start();
            const HelpCollection collection(profile);
            QVERIFY(!collection.isCollection());
            QCOMPARE(HelpManager::ViewerArguments(collection), (QStringList{u"-profile"_s, profile}));
            QCOMPARE(suite.read(u"help/wendle.adp"_s), contents);
        }
    }

    void saysWhatFails()
    {
        Installation suite;
        installHelp(suite);
        startWithHelp(suite);
        suite.define("<projectCreator><name>T</name></projectCreator>");
        ApplicationWindow window(u"t"_s, u"missing page.htm"_s, {});
        window.show();
        const BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        // From the first press, and once per press, wherever the focus is.
        auto* field = window.currentPage()->findChild<QLineEdit*>();
        field->setFocus();
        QTest::keyClick(field, Qt::Key_F1);
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().startsWith("Assistant Error|The help page "_L1));
        window.ShowHelp();
        QTest::keyClick(&window, Qt::Key_Help);
        QCOMPARE(boxes.texts.size(), 3);
    }

    void tellsTheViewerWhatToShow()
    {
        const Installation suite;
        const QUrl page(u"qthelp://ns/folder/ä.htm"_s);
        {
            AssistantClient client(
                suite.writeScript(u"viewer"_s, "echo \"$@\" > \"$0.arguments\"; cat > \"$0.commands\""));
            client.setArguments({u"-profile"_s, u"p"_s});
            client.showPage(page);
            client.showPage(page);
            QTRY_COMPARE(suite.read(u"viewer.commands"_s).count('\n'), 2);
        }
        QCOMPARE(suite.read(u"viewer.arguments"_s), QByteArray("-enableRemoteControl -profile p\n"));
        QVERIFY(suite.read(u"viewer.commands"_s).startsWith("setSource " + page.toEncoded() + '\n'));

        // One that does not like its profile starts, complains and leaves; one that is not there does not start.
        for (const QString& viewer : {suite.writeScript(u"picky"_s, "echo 'Unknown option'; exit 255"), u"/gone"_s}) {
            AssistantClient client(viewer);
            const QSignalSpy errors(&client, &AssistantClient::error);
            client.showPage(page);
            QTRY_COMPARE(errors.size(), 1);
            const QString text = errors[0][0].toString();
            QVERIFY2(text.contains(viewer) && (viewer == "/gone"_L1 || text.endsWith("Unknown option"_L1)),
                     qPrintable(text));
        }
    }

    void drivesTheRealAssistant()
    {
        if (AssistantClient::program().isEmpty() || QStandardPaths::findExecutable(u"Xvfb"_s).isEmpty() ||
            QStandardPaths::findExecutable(u"xwininfo"_s).isEmpty() ||
            QStandardPaths::findExecutable(u"pkill"_s).isEmpty()) {
            QSKIP("needs assistant, Xvfb, xwininfo and pkill");
        }
        QProcess server;
        server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s, u"-noreset"_s});
        QVERIFY(server.waitForReadyRead(20000));
        const QByteArray display = ":" + server.readLine().trimmed();
        const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
        qputenv("DISPLAY", display);
        qputenv("QT_QPA_PLATFORM", "xcb");
        const auto windows = [&display] {
            QProcess info;
            info.start(u"xwininfo"_s, {u"-display"_s, QString::fromLatin1(display), u"-root"_s, u"-tree"_s});
            info.waitForFinished();
            return info.readAllStandardOutput();
        };
        Installation suite;
        installHelp(suite);
        suite.start();
        const QString profile = suite.path(u"help/wendle.adp"_s);
        QVERIFY(QFile::rename(suite.path(u"help/projectCreation.qhc"_s), profile));
        {
            AssistantClient client;
            QSignalSpy errors(&client, &AssistantClient::error);
            client.setArguments(HelpManager::ViewerArguments(HelpCollection(profile)));
            client.showPage(QUrl(u"qthelp://org.kovra.projectcreation/help/projectCreation.htm"_s));
            QTRY_VERIFY_WITH_TIMEOUT(windows().contains("KOVRA Help"), 30000);
            client.showPage(QUrl(u"qthelp://org.kovra.projectcreation/help/configuration.htm"_s));
            QVERIFY(errors.isEmpty());
            // One that dies is reported, and started again with the next request.
            QProcess::execute(u"pkill"_s, {u"-KILL"_s, u"-f"_s, profile});
            QTRY_COMPARE_WITH_TIMEOUT(errors.size(), 1, 10000);
            QVERIFY(!windows().contains("KOVRA Help"));
            client.showPage(QUrl(u"qthelp://org.kovra.projectcreation/help/projectCreation.htm"_s));
            QTRY_VERIFY_WITH_TIMEOUT(windows().contains("KOVRA Help"), 30000);
        }
        QVERIFY(!windows().contains("KOVRA Help"));
        qputenv("QT_QPA_PLATFORM", platform);
        qunsetenv("DISPLAY");
        server.terminate();
        server.waitForFinished();
    }
};

KOVRA_TEST(HelpManagerTest)
#include "HelpManagerTest.moc"

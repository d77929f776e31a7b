// SPDX-License-Identifier: MIT
#include "dialogs/HelpManager.h"
#include "app/AppRegistry.h"
#include "app/Translations.h"
#include "dialogs/AssistantClient.h"
#include "dialogs/HelpCollection.h"
#include "dialogs/HelpViewer.h"
#include "Installation.h"
#include "TestMain.h"

#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTextBrowser>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

const QString space = u"qthelp://org.kovra.projectcreation/help/"_s;

/// The program's help with its collection under the default name of a profile, which is given.
QString installHelp(const Installation& suite)
{
    QProcess::execute(u"cp"_s, {u"-R"_s, QStringLiteral(HELP_FOLDER "/."), suite.path(u"help"_s)});
    const QString profile = suite.path(u"help/wendle.adp"_s);
    QFile::rename(suite.path(u"help/projectCreation.qhc"_s), profile);
    return profile;
}

} // namespace

class HelpManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsProfilesApart()
    {
        Installation suite;
        AppRegistry& registry = suite.start();
        QVERIFY(!HelpManager::HelpAvailable(registry));
        const QString profile = installHelp(suite);
        QVERIFY(HelpManager::HelpAvailable(registry));
        const HelpCollection collection(profile);
        QCOMPARE(HelpManager::ViewerArguments(registry, collection), (QStringList{u"-collectionFile"_s, profile}));
        // What the suite says counts, up to where its file is cut.
        registry.installValues.readDocument("<x><y><helpProfileStr>-own</helpProfileStr></y><wendleHelpFile>own.qhc"
                                            "</wendleHelpFile><wendleHelpDir>cut");
        QCOMPARE(HelpManager::ViewerArguments(registry, collection),
                 (QStringList{u"-own"_s, suite.path(u"help/own.qhc"_s)}));
    }

    void leavesOldProfilesAlone()
    {
        for (const char* contents : {"<assistantconfig/>", ""}) {
            Installation suite;
            const QString profile = suite.write(u"help/wendle.adp"_s, contents);
            const HelpCollection old(profile);
            QVERIFY(!old.isCollection());
            QCOMPARE(HelpManager::ViewerArguments(suite.start(), old), (QStringList{u"-profile"_s, profile}));
            QCOMPARE(suite.read(profile), contents);
        }
    }

    void findsPages()
    {
        const Installation suite;
        const HelpCollection collection(installHelp(suite));
        const QUrl page = collection.find(suite.path(u"help/configuration.htm"_s));
        QCOMPARE(page, QUrl(space + u"configuration.htm"_s));
        QCOMPARE(collection.find(suite.path(u"help/elsewhere/configuration.htm"_s)), page);
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

    void speaksTheUsersLanguage()
    {
        Installation suite;
#ifdef Q_OS_WIN
        // Without Qt Help the pages are files.
        suite.write(u"help/startPage.htm"_s, {});
        suite.write(u"help/de/startPage.htm"_s, {});
        const QString base = QUrl::fromLocalFile(suite.path(u"help/"_s)).toString();
#else
        installHelp(suite);
        const QString& base = space;
#endif
        const auto shown = [&](const QString& language, const QString& page) {
            Translations::install(QLocale(language));
            const QString found = HelpManager(suite.start(), nullptr).find(page).toString();
            Translations::install(QLocale::c());
            qDeleteAll(qApp->findChildren<QTranslator*>());
            return QString(found).remove(base);
        };
        QCOMPARE(shown(u"de"_s, u"startPage.htm"_s), u"de/startPage.htm"_s);
        QCOMPARE(shown(u"en"_s, u"startPage.htm"_s), u"startPage.htm"_s);
        // No translation, and no page.
        QCOMPARE(shown(u"fr"_s, u"startPage.htm"_s), u"startPage.htm"_s);
        QCOMPARE(shown(u"de"_s, u"gone.htm"_s), QString());
    }

    void tellsTheViewerWhatToShow()
    {
        const Installation suite;
        const QUrl page(u"qthelp://ns/folder/ä.htm"_s);
        AssistantClient client(suite.writeChild(u"viewer"_s, "write $0.heard $*; copy-input $0.heard"));
        client.setArguments({u"-profile"_s, u"p"_s});
        client.showPage(page);
        client.showPage(page);
        QTRY_COMPARE(suite.read(u"viewer.heard"_s), "-enableRemoteControl -profile p\n" +
                                                        QByteArray("setSource " + page.toEncoded() + '\n').repeated(2));
    }

    void reportsABrokenViewer_data()
    {
        const TestRows<QByteArray, QString> row("script", "reason");
        row("does not like its profile", "print Unknown option; exit 255", u"Unknown option"_s);
        row("dies", "die", {});
        row("is not there", {}, {});
    }

    void reportsABrokenViewer()
    {
        const auto [script, reason] = fetched<QByteArray, QString>("script", "reason");
        const Installation suite;
        const QString viewer = script.isEmpty() ? u"/gone"_s : suite.writeChild(u"viewer"_s, script);
        AssistantClient client(viewer);
        const QSignalSpy errors(&client, &AssistantClient::error);
        client.showPage(QUrl(u"qthelp://ns/folder/page.htm"_s));
        QTRY_COMPARE(errors.size(), 1);
        const QString text = errors[0][0].toString();
        QVERIFY2(text.contains(viewer), qPrintable(text));
        QVERIFY2(text.endsWith(reason), qPrintable(text));
        // Tried again when asked.
        client.showPage(QUrl(u"qthelp://ns/folder/page.htm"_s));
        QTRY_COMPARE(errors.size(), 2);
    }

    void drivesTheRealAssistant()
    {
        if (AssistantClient::program().isEmpty() || QStandardPaths::findExecutable(u"Xvfb"_s).isEmpty() ||
            QStandardPaths::findExecutable(u"xwininfo"_s).isEmpty()) {
            QSKIP("needs assistant, Xvfb and xwininfo");
        }
        QProcess server;
        server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s, u"-noreset"_s});
        QVERIFY(server.waitForReadyRead(20000));
        const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
        qputenv("DISPLAY", ":" + server.readLine().trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");
        const auto isShown = [] {
            QProcess info;
            info.start(u"xwininfo"_s, {u"-root"_s, u"-tree"_s});
            info.waitForFinished();
            return info.readAllStandardOutput().contains("KOVRA Help");
        };
        Installation suite;
        const QString profile = installHelp(suite);
        suite.start();
        {
            AssistantClient client;
            client.setArguments(HelpManager::ViewerArguments(*appRegistry, HelpCollection(profile)));
            client.showPage(QUrl(space + u"projectCreation.htm"_s));
            QTRY_VERIFY_WITH_TIMEOUT(isShown(), 30000);
        }
        QVERIFY(!isShown());
        qputenv("QT_QPA_PLATFORM", platform);
        qunsetenv("DISPLAY");
        server.terminate();
        server.waitForFinished();
    }
};

KOVRA_TEST(HelpManagerTest)
#include "HelpManagerTest.moc"

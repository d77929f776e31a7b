// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/CommandLine.h"
#include "definitions/KOVRASettingsFile.h"
#include "Installation.h"
#include "process/WizardState.h"
#include "TestMain.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// What the program makes of its command line, and what it leaves behind.
class StartupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithoutWindow_data()
    {
        const QString usage =
            u"\"ProjectCreation options:\n-file <file>: xml definition file\n-cpp: Create a Orv C++ file\n"
            "-c: Create a Orv C file\n-prj <file>: project file to be created\n-mp <file>: Message Personality\n"
            "-ap <file>: Analyser Personality\n-cp <file>: Compiler Personality\n\""_s;
        const QString version = u"\"Create KOVRA Project\"  ( \"Version\"  :  1 (build 1) )"_s;
        const TestRows<QStringList, QString, int, QString> row("arguments", "language", "status", "says");
        row("version", {u"-file"_s, u"a.xml"_s, u"-ver"_s}, {}, 0, version);
        // Scripts read the options: they are the same in every language.
        row("options", {u"-help"_s}, u"de"_s, 0, usage);
#ifdef Q_OS_UNIX
        row("no display", {}, {}, 1, u"ProjectCreation: no display to open a window on ("_s);
#endif
    }

    void endsWithoutWindow()
    {
        const auto [arguments, language, says] =
            fetched<QStringList, QString, QString>("arguments", "language", "says");
        const ProgramResult result =
            runProgram(QStringLiteral(PROGRAM), arguments, {{u"LC_ALL"_s, u"C.UTF-8"_s}, {u"LANGUAGE"_s, language}});
        QVERIFY2(result.errors.startsWith(says), qPrintable(result.errors));
        QCOMPARE(result.errors.count(u'\n'), says.count(u'\n') + 1);
        QTEST(result.status, "status");
    }

    void optionsActInTheirOrder()
    {
        Installation suite;
        suite.define("<projectCreator><name>T</name></projectCreator>");
        const QString other = suite.write(u"other.xml"_s, "<a>\n  <b></a>\n");
        const QString trace = suite.path(u"trace.txt"_s);
        suite.start({u"-tracefile"_s, trace, u"-file"_s, other});
        suite.start({u"-file"_s});
        QCOMPARE(appRegistry->DefinitionsFileName(), suite.path(u"xml/settings.xml"_s));
        QCOMPARE(appRegistry->definitions.projectCreators.size(), size_t(1));
        QVERIFY(!appRegistry->traceLog.isOn());
        const QString traced = QString::fromUtf8(suite.read(u"trace.txt"_s));
        QStringList untraced{u"XML file set to: "_s + other, u"KOVRASettingsFile::ReadFile="_s + other,
                             other + u":2:"_s, u"SetProcessEnvironment: 1"_s};
        untraced.removeIf([&traced](const QString& line) { return traced.contains(line); });
        QVERIFY2(untraced.isEmpty(), qPrintable(untraced.join(u", "_s)));

        suite.start({u"-tracefile"_s, trace + u"/below a file"_s});
        QVERIFY(!appRegistry->traceLog.isOn());
        // A file that is missing where it should be is looked for by its name in the xml area, then in the home folder.
        QFile inHome(QDir::homePath() + u"/found.xml"_s);
        QVERIFY(inHome.open(QIODevice::WriteOnly));
        suite.start({u"-file"_s, u"found.xml"_s});
        QCOMPARE(appRegistry->DefinitionsFileName(), inHome.fileName());
        QVERIFY(inHome.remove());
        suite.start({u"-file"_s, u"found.xml"_s});
        QCOMPARE(appRegistry->DefinitionsFileName(), u"found.xml"_s);
    }

    void presetsFromTheCommandLine()
    {
        const Installation suite;
        const QString file = QDir::toNativeSeparators(suite.write(u"p.p_c"_s, ""));
        const QString missing = suite.nativePath(u"missing"_s);
        WizardState state;
        CommandLine::preset({u"exe"_s, u"-c"_s, u"-cpp"_s, u"-prj"_s, suite.path(u"new.v2.prj"_s), u"-cp"_s, file,
                             u"-ap"_s, file, u"-mp"_s, missing, u"-cp"_s},
                            state);
        QVERIFY(state.cppAvailable);
        QVERIFY(!state.cAvailable);
        QVERIFY(!state.personalitiesGiven);
        QCOMPARE(state.ProjectFile(), suite.nativePath(u"new.prj"_s));
        QCOMPARE(state.compilerPersonality, file);
        QCOMPARE(state.messagePersonality, missing);
        CommandLine::preset({u"-mp"_s, file, u"-ap"_s, file, u"-cp"_s, file, u"-cp"_s, missing}, state);
        QVERIFY(state.personalitiesGiven);
        QCOMPARE(state.compilerPersonality, missing);
    }

    void temporaryFilesLastUntilShutDown()
    {
        Installation suite;
        AppRegistry& registry = suite.start();
        const QStringList files{registry.CreateTempFileName({}), registry.CreateTempFileName(u"txt"_s),
                                registry.CreateTempFileName(u".txt"_s)};
        QStringList suffixes;
        for (const QString& file : files) {
            suffixes += QFileInfo::exists(file) ? QFileInfo(file).completeSuffix() : u"missing"_s;
        }
        QCOMPARE(suffixes, (QStringList{{}, u"txt"_s, u"txt"_s}));
        registry.ShutDown();
        QVERIFY(std::ranges::none_of(files, [](const QString& file) { return QFileInfo::exists(file); }));
    }
};

KOVRA_TEST(StartupTest)
#include "StartupTest.moc"

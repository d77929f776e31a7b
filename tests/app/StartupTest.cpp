// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/CommandLine.h"
#include "batch/BatchInputs.h"
#include "definitions/KOVRASettingsFile.h"
#include "definitions/Placeholders.h"
#include "Installation.h"
#include "process/WizardState.h"
#include "TestMain.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

/// What the program makes of its command line, and what it leaves behind.
class StartupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithoutWindow()
    {
        const QString usage =
            u"\"ProjectCreation options:\n-file <file>: xml definition file\n-cpp: Create a Orv C++ file\n"
            "-c: Create a Orv C file\n-prj <file>: project file to be created\n-mp <file>: Message Personality\n"
            "-ap <file>: Analyser Personality\n-cp <file>: Compiler Personality\n\""_s;
        const QString version = u"\"Create KOVRA Project\"  ( \"Version\"  :  1 (build 1) )"_s;
        const std::tuple<QStringList, int, QString> rows[] = {
            {{u"-file"_s, u"a.xml"_s, u"-ver"_s}, 0, version}, {{u"-help"_s}, 0, usage}, {{}, 1, u"no display"_s}};
        for (const auto& [arguments, status, says] : rows) {
            // Scripts read the options: they are the same in every language.
            const QString language = says == usage ? u"de"_s : QString();
            const ProgramResult result = runProgram(QStringLiteral(PROGRAM), arguments,
                                                    {{u"LC_ALL"_s, u"C.UTF-8"_s}, {u"LANGUAGE"_s, language}});
            QVERIFY2(result.errors.contains(says), qPrintable(result.errors));
            QCOMPARE(result.status, status);
            QVERIFY2(status == 0 || result.errors.count(u'\n') == 1, qPrintable(result.errors));
        }
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
        QVERIFY(appRegistry->definitions.projectCreators.size() == 1 && !appRegistry->traceLog.isOn());
        const QString traced = QString::fromUtf8(suite.read(u"trace.txt"_s));
        for (const QString& line : {u"XML file set to: "_s + other, u"KOVRASettingsFile::ReadFile="_s + other,
                                    other + u":2:"_s, u"SetProcessEnvironment: 1"_s}) {
            QVERIFY2(traced.contains(line), qPrintable(traced));
        }

        suite.start({u"-tracefile"_s, trace + u"/below a file"_s});
        QVERIFY(!appRegistry->traceLog.isOn());
        // A file that is missing where it should be is looked for by its name in the xml area.
        suite.start({u"-file"_s, u"/nowhere/settings.xml"_s});
        QCOMPARE(appRegistry->DefinitionsFileName(), suite.path(u"xml/settings.xml"_s));
        // Then in the home folder.
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
        const QString file = suite.write(u"p.p_c"_s, "");
        WizardState state;
        CommandLine::preset({u"exe"_s, u"-c"_s, u"-cpp"_s, u"-prj"_s, u"/work/new.v2.prj"_s, u"-cp"_s, file, u"-ap"_s,
                             file, u"-mp"_s, u"/missing"_s, u"-cp"_s},
                            state);
        QVERIFY(state.cppAvailable && !state.cAvailable && !state.personalitiesGiven);
        QCOMPARE(state.fileDir + u'|' + state.fileName, u"/work|new"_s);
        QCOMPARE(state.compilerPersonality + u'|' + state.messagePersonality, file + u"|/missing"_s);
        CommandLine::preset({u"-mp"_s, file, u"-ap"_s, file, u"-cp"_s, file, u"-cp"_s, u"/gone"_s}, state);
        QVERIFY(state.personalitiesGiven);
        QCOMPARE(state.compilerPersonality, u"/gone"_s);
    }

    void temporaryFilesLastUntilShutDown()
    {
        Installation suite;
        AppRegistry& registry = suite.start();
        const QStringList files{registry.CreateTempFileName({}), registry.CreateTempFileName(u"txt"_s),
                                registry.CreateTempFileName(u".txt"_s)};
        const auto exists = [](const QString& file) { return QFileInfo::exists(file); };
        QVERIFY(std::ranges::all_of(files, exists));
        QCOMPARE(QFileInfo(files[0]).completeSuffix(), QString());
        QCOMPARE(QFileInfo(files[1]).completeSuffix() + QFileInfo(files[2]).completeSuffix(), u"txttxt"_s);
        registry.ShutDown();
        QVERIFY(std::ranges::none_of(files, exists));
    }

    void findsTheInputThatIsMeant()
    {
        const auto input = [](const QByteArray& name, const QByteArray& contents = {}) {
            return "<inputData><displayName>" + name + "</displayName>" + contents + "</inputData>";
        };
        const QByteArray preset = "<defaultValue>1</defaultValue>";
        const QByteArray choice = input("One", R"(<inputType OUT_STR="-1">RADIO</inputType>)" + preset) +
                                  input("Two", R"(<inputType OUT_STR="-2">RADIO</inputType>)" + preset);
        const QByteArray texts = input("Name") + input("Twin") + input("Twin");
        KOVRASettingsFile settings;
        settings.readDocument(
            "<s><projectCreator>" + input("Both", "<defaultValue>both</defaultValue>") +
                input("Only", R"(<inputType TYPE="C_ONLY">EDIT</inputType><defaultValue>c</defaultValue>)") +
                input("Only", R"(<inputType TYPE="CPP_ONLY">EDIT</inputType>)") + input("Name") + input("A=B pairs") +
                input("Group", R"(<inputType SEP="+">GROUP</inputType>)" + choice) +
                input("Group", "<inputType>GROUP</inputType>" + texts +
                                   input("Hidden", R"(<inputType TYPE="CPP_ONLY">CHECK</inputType>)")) +
                "</projectCreator></s>",
            {});
        const ArgumentDefinitions& definitions = settings.projectCreators.at(0)->inputData;
        const QString presets = u"both|c||||-2|"_s;
        const std::tuple<QString, QString, QString> rows[] = {
            {u"Both=both"_s, presets, {}},
            {u"Only=x"_s, u"both|x||||-2|"_s, {}},
            {u"Name=x"_s, u"both|c||x||-2|"_s, {}},
            {u"Group/Name=x"_s, u"both|c||||-2|x"_s, {}},
            {u"A=B pairs=C=D"_s, u"both|c|||C=D|-2|"_s, {}},
            {u"Both=A=B"_s, u"A=B|c||||-2|"_s, {}},
            {u"One=yes"_s, u"both|c||||-1|"_s, {}},
            {u"Two=0"_s, presets, u"one of a choice"_s},
            {u"Hidden=1"_s, presets, u"for the other analyser"_s},
            {u"what=1=2"_s, presets, u"no input \"what\""_s},
            {u"Twin=1"_s, presets, u"several inputs"_s},
        };
        for (const auto& [given, values, problem] : rows) {
            BatchInputs inputs(definitions, true);
            const QString said = inputs.set(given).problem;
            QVERIFY2(problem.isEmpty() ? said.isEmpty() : said.contains(problem), qPrintable(given + u": "_s + said));
            QStringList result;
            for (const auto& definition : definitions) {
                result += InputValues::value(*definition, inputs.source());
            }
            QCOMPARE(result.join(u'|'), values);
        }
    }
};

KOVRA_TEST(StartupTest)
#include "StartupTest.moc"

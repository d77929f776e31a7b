// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/CommandLine.h"
#include "Installation.h"
#include "TestMain.h"
#include "wizard/WizardState.h"

#include <QFileInfo>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Result
{
    int status;
    QByteArray errors;
};

// The program itself, without a display.
Result runProgram(const Installation& suite, const QStringList& arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"DISPLAY"_s);
    environment.remove(u"WAYLAND_DISPLAY"_s);
    environment.remove(u"HOME"_s);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(suite.path(u"work"_s));
    program.start(QStringLiteral(PROGRAM), arguments);
    if (!program.waitForFinished() || program.exitStatus() != QProcess::NormalExit) {
        return {-1, program.readAllStandardError()};
    }
    return {program.exitCode(), program.readAllStandardError()};
}

} // namespace

class StartupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithoutWindow_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("says");
        QTest::newRow("version") << QStringList{u"-file"_s, u"a.xml"_s, u"-ver"_s} << 0
                                 << QByteArray("\"Create KOVRA Project\"  ( \"Version\"  :  1 (build 1) )");
        QTest::newRow("usage") << QStringList{u"-help"_s} << 0
                               << QByteArray("\"ProjectCreation options:\n-file <file>: xml definition file\n-cpp: "
                                             "Create a Orv C++ file\n-c: Create a Orv C file\n-prj <file>: project "
                                             "file to be created\n-mp <file>: Message Personality\n-ap <file>: "
                                             "Analyser Personality\n-cp <file>: Compiler Personality\n\"");
        QTest::newRow("no display") << QStringList{} << 1 << QByteArray("no display");
    }

    void endsWithoutWindow()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const int, status);
        QFETCH(const QByteArray, says);
        const Installation suite;
        const Result result = runProgram(suite, arguments);
        QVERIFY2(result.errors.contains(says), result.errors);
        QCOMPARE(result.status, status);
        if (status != 0) {
            QCOMPARE(result.errors.count('\n'), 1);
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
        QCOMPARE(appRegistry->definitions.projectCreators.size(), size_t(1));
        QVERIFY(!appRegistry->traceOn);
        const QByteArray traced = suite.read(u"trace.txt"_s);
        QVERIFY2(traced.contains("XML file set to: " + other.toUtf8()), traced);
        QVERIFY2(traced.contains("KOVRASettingsFile::ReadFile=" + other.toUtf8()), traced);
        QVERIFY2(traced.contains(other.toUtf8() + ":2:"), traced);
        QVERIFY2(traced.contains("SetProcessEnvironment: 1"), traced);

        suite.start({u"-tracefile"_s, trace + u"/below a file"_s});
        QVERIFY(!appRegistry->traceOn);
        // A file that is missing where it should be is looked for by its name in the xml area.
        suite.start({u"-file"_s, u"/nowhere/settings.xml"_s});
        QCOMPARE(appRegistry->DefinitionsFileName(), suite.path(u"xml/settings.xml"_s));
    }

    void presetsFromTheCommandLine()
    {
        const Installation suite;
        const QString file = suite.write(u"p.p_c"_s, "");
        WizardState state;
        CommandLine::preset({u"exe"_s, u"-c"_s, u"-cpp"_s, u"-prj"_s, u"/work/new.v2.prj"_s, u"-cp"_s, file, u"-ap"_s,
                             file, u"-mp"_s, u"/missing"_s, u"-cp"_s},
                            state);
        QVERIFY(state.cppAvailable && !state.cAvailable);
        QCOMPARE(state.fileName, u"new"_s);
        QCOMPARE(state.fileDir, u"/work"_s);
        QCOMPARE(state.messagePersonality, u"/missing"_s);
        QCOMPARE(state.compilerPersonality, file);
        QVERIFY(!state.personalitiesGiven);
        CommandLine::preset({u"-mp"_s, file, u"-ap"_s, file, u"-cp"_s, file, u"-cp"_s, u"/gone"_s}, state);
        QVERIFY(state.personalitiesGiven);
        QCOMPARE(state.compilerPersonality, u"/gone"_s);
    }

    void temporaryFilesLastUntilShutDown()
    {
        Installation suite;
        AppRegistry& registry = suite.start();
        const QString plain = registry.CreateTempFileName({});
        const QString text = registry.CreateTempFileName(u"txt"_s);
        const QString dotted = registry.CreateTempFileName(u".txt"_s);
        QVERIFY(QFileInfo(plain).suffix().isEmpty() && text.endsWith(".txt"_L1) && dotted.endsWith(".txt"_L1));
        QVERIFY(!dotted.endsWith("..txt"_L1) && QFileInfo::exists(text));
        registry.ShutDown();
        QVERIFY(!QFileInfo::exists(plain) && !QFileInfo::exists(text) && !QFileInfo::exists(dotted));
    }
};

KOVRA_TEST(StartupTest)
#include "StartupTest.moc"

// SPDX-License-Identifier: MIT
#include "Installation.h"
#include "TestMain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A suite with one conversion type "T" for C projects, whose child gets the project file and the input "E", one with
/// a compliance module and a launcher each, and the program installed in it by a link.
struct BatchSuite : Installation
{
    explicit BatchSuite(const QByteArray& script = "write $1 new")
    {
        const QByteArray program = writeChild(u"convert"_s, script).toUtf8();
        const QByteArray tool = writeChild(u"tool"_s, "print tool $*; exit $TOOL_STATUS").toUtf8();
        const QByteArray file = write(u"m.p_s"_s, "-x\n").toUtf8();
        define("<projectCreator><name>T</name><orvcProject>1</orvcProject><exe>" + program +
               "</exe><exeargs>%PF %E</exeargs><messagePersonality TYPE=\"C\"></messagePersonality>"
               "<inputData><displayName>E</displayName><inputType>FILE</inputType><ext>*.txt</ext>"
               "<argDef>%E</argDef></inputData></projectCreator>"
               "<compliance_module><product>ORVC</product><name>Rules</name><location>" +
               path(u"work"_s).toUtf8() + "</location><messagepersonality>" + file +
               "</messagepersonality></compliance_module>"
               "<applicationPage><application name=\"Some\\ntool\"><exe>" +
               tool + "</exe><exeargs>-n %Q</exeargs></application></applicationPage>");
        placeProgram(QStringLiteral(PROGRAM), u"bin/ProjectCreation"_s);
    }
    ProgramResult run(const QStringList& arguments, Variables variables = {}) const
    {
        variables += {u"LC_ALL"_s, u"C.UTF-8"_s};
        return runProgram(path(u"bin/ProjectCreation"_s), QStringList{u"-batch"_s} + arguments, variables,
                          path(u"work"_s));
    }
    ProgramResult convert(const QStringList& more = {}) const
    {
        return run(QStringList{u"-prj"_s, u"p.prj"_s, u"-type"_s, u"T"_s} + more);
    }
    QJsonObject converted(const QStringList& more = {}) const
    {
        return QJsonDocument::fromJson(convert(QStringList{u"--json"_s} + more).output.toUtf8()).object();
    }
    QString project() const { return nativePath(u"work/p.prj"_s); }
};

} // namespace

/// The program as a script or a build server runs it.
class BuildServerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statusTellsHowItEnded_data()
    {
        const TestRows<QByteArray, QString, int, QByteArray, QString> row("script", "outcome", "status", "project",
                                                                          "says");
        row("created", "write $1 new", u"created"_s, 0, "new\n", {});
        row("failed beside a file", "write $1 half; exit 3", u"createdButFailed"_s, 1, "half\n", u"exit code 3"_s);
        row("failed beside an empty file", "write $1; exit 1", u"notCreated"_s, 1, "old", u"is empty"_s);
        row("not created", "print-error why; exit 4", u"notCreated"_s, 1, "old", u"exit code 4"_s);
        row("crashed", "write $1 half; crash", u"crashed"_s, 1, "old", u"crashed"_s);
        row("takes too long", "write $1 half; hang", u"timedOut"_s, 1, "old", u"longer than"_s);
    }

    void statusTellsHowItEnded()
    {
        const auto [script, outcome, status, project, says] =
            fetched<QByteArray, QString, int, QByteArray, QString>("script", "outcome", "status", "project", "says");
        const BatchSuite suite(script);
        suite.write(u"work/p.prj"_s, "old");
        const QStringList options{u"-overwrite"_s, u"-timeout"_s, u"1"_s};
        const ProgramResult result = suite.convert(options);
        QCOMPARE(result.status, status);
        QVERIFY2(result.errors.contains(says), qPrintable(result.errors));
        QCOMPARE(suite.read(suite.project()), project);
        const QJsonObject json = suite.converted(options);
        QCOMPARE(json[u"outcome"].toString(), outcome);
        QCOMPARE(json[u"status"].toInt(), status);
    }

    void jsonTellsWhatRan()
    {
        const BatchSuite suite("print chatter; write $1 new");
        const QJsonObject json = suite.converted({u"-input"_s, u"E=some file"_s});
        QCOMPARE(json[u"project"].toString(), suite.project());
        QCOMPARE(json[u"type"].toString(), u"T"_s);
        QCOMPARE(json[u"analyser"].toString(), u"ORVC"_s);
        QVERIFY(json[u"program"].toString().startsWith(suite.path(u"convert"_s)));
        QCOMPARE(json[u"arguments"].toArray(), (QJsonArray{suite.project(), u"some file"_s}));
        QCOMPARE(json[u"exitCode"].toInt(-1), 0);
        QVERIFY(json[u"duration"].toDouble(-1) >= 0);
    }

    void quietRunsSpeakOnlyOfFailures()
    {
        const BatchSuite good("print chatter; write $1 new");
        const ProgramResult silent = good.convert({u"-quiet"_s});
        QCOMPARE(silent.status, 0);
        QCOMPARE(silent.output + silent.errors, QString());
        const BatchSuite bad("print reason; exit 3");
        const ProgramResult loud = bad.convert({u"-quiet"_s});
        QCOMPARE(loud.status, 1);
        QCOMPARE(loud.output, QString());
        QVERIFY2(loud.errors.startsWith("reason\n"_L1), qPrintable(loud.errors));
    }

    void dryRunsTouchNothing()
    {
        const BatchSuite suite;
        suite.write(u"work/p.prj"_s, "old");
        const ProgramResult result = suite.convert({u"-dry-run"_s, u"-overwrite"_s});
        QCOMPARE(result.status, 0);
        QVERIFY2(result.output.startsWith(suite.path(u"convert"_s)), qPrintable(result.output));
        QVERIFY2(result.output.contains(u"\n  "_s + suite.project()), qPrintable(result.output));
        QCOMPARE(suite.read(suite.project()), QByteArray("old"));
    }

    void modulesGiveThePersonalities()
    {
        const BatchSuite suite;
        QCOMPARE(suite.convert({u"-module"_s, u"Rules"_s}).status, 0);
        const ProgramResult unknown = suite.convert({u"-overwrite"_s, u"-module"_s, u"None"_s});
        QCOMPARE(unknown.status, 2);
        QVERIFY2(unknown.errors.contains("Rules"_L1), qPrintable(unknown.errors));
        const ProgramResult both =
            suite.convert({u"-overwrite"_s, u"-module"_s, u"Rules"_s, u"-mp"_s, suite.path(u"m.p_s"_s)});
        QCOMPARE(both.status, 2);
        QVERIFY2(both.errors.contains("-mp"_L1), qPrintable(both.errors));
    }

    void refusesWhatDoesNotGoTogether()
    {
        const BatchSuite suite;
        for (const auto& [arguments, says] :
             {std::pair{u"-list-types -check x"_s, u"-list-types does not go with -check"_s},
              {u"-list-types -input a=b"_s, u"-input does not go with -list-types"_s},
              {u"-prj p.prj -type T -c -cpp"_s, u"-c does not go with -cpp"_s},
              {u"-prj p.prj -type T -prj q.prj"_s, u"-prj is given twice"_s},
              {u"-prj p.prj -type"_s, u"-type wants a value"_s},
              {u"-prj p.prj -type T -timeout soon"_s, u"-timeout wants"_s},
              {u"-prj p.prj"_s, u"-type <name> is missing"_s},
              {u"-type T"_s, u"-prj <file> is missing"_s},
              {u"-type T -prj -c"_s, u"can not be the project file"_s},
              {u"-bogus"_s, u"\"-bogus\""_s},
              {u"-run x"_s, u"-prj <file> is missing"_s}}) {
            const ProgramResult result = suite.run(arguments.split(u' '));
            QVERIFY2(result.status == 2, qPrintable(arguments));
            QVERIFY2(result.errors.contains(says), qPrintable(arguments + u": "_s + result.errors));
            QCOMPARE(QDir(suite.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden), QStringList());
        }
    }

    void answersQuestions()
    {
        for (const auto& [arguments, says] : {std::pair{u"-batch -help"_s, u"-list-inputs"_s},
                                              {u"-batch --help"_s, u"-list-inputs"_s},
                                              {u"-batch -h"_s, u"-list-inputs"_s},
                                              {u"--help"_s, u"-batch -help"_s},
                                              {u"-h"_s, u"-batch -help"_s},
                                              {u"--version"_s, u"Create KOVRA Project"_s}}) {
            const ProgramResult result = runProgram(QStringLiteral(PROGRAM), arguments.split(u' '));
            QVERIFY2(result.status == 0, qPrintable(arguments));
            QVERIFY2(result.output.contains(says), qPrintable(arguments + u": "_s + result.output + result.errors));
        }
    }

    void warnsOfTheDefinitionsThatItUses()
    {
        const BatchSuite suite;
        suite.write(u"xml/broken.xml"_s, "<s><projectCreator><name>T</name></projectCreator>\n<a></b>\n");
        const QString broken = suite.run({u"-file"_s, u"/nowhere/broken.xml"_s, u"-list-types"_s}).errors;
        QVERIFY2(broken.contains(suite.nativePath(u"xml/broken.xml"_s) + u":2:"_s), qPrintable(broken));
        QVERIFY2(broken.contains(u"no definitions file "_s + QDir::toNativeSeparators(u"/nowhere/broken.xml"_s)),
                 qPrintable(broken));
        QCOMPARE(suite.run({u"-list-types"_s}).errors, QString());
        suite.write(u"work/settings.xml"_s, suite.read(u"xml/settings.xml"_s));
        const QString foreign = suite.run({u"-list-types"_s}).errors;
        QVERIFY2(foreign.contains(suite.nativePath(u"work/settings.xml"_s)), qPrintable(foreign));
        QCOMPARE(suite.run({u"-file"_s, suite.path(u"xml/settings.xml"_s), u"-list-types"_s}).errors, QString());
        const QString said = suite.run({u"-list-types"_s}, {{u"ORVCPATH"_s, u"/gone"_s}}).errors;
        QVERIFY2(said.contains("ORVCPATH"_L1), qPrintable(said));
        QVERIFY2(said.contains(QDir::toNativeSeparators(u"/gone"_s)), qPrintable(said));
    }

    void warnsOfValuesThatAreReplaced()
    {
        const BatchSuite suite("write $1 $2");
        QVERIFY(suite.convert({u"-input"_s, u"E=plain"_s}).errors.isEmpty());
        suite.write(u"work/rates%E"_s, {});
        const ProgramResult result =
            suite.run({u"-prj"_s, suite.path(u"work/a%E/p.prj"_s), u"-type"_s, u"T"_s, u"-input"_s, u"E=x"_s});
        QVERIFY2(result.errors.contains("a%E"_L1), qPrintable(result.errors));
    }

    void listsWhatATypeAsksFor()
    {
        const BatchSuite suite;
        const QString text = suite.run({u"-list-inputs"_s, u"T"_s}).output;
        QCOMPARE(text, u"E  [FILE, *.txt, %E]\n-mp <file>: message personality, *.p_s\n"_s);
        const QJsonArray inputs =
            QJsonDocument::fromJson(suite.run({u"-list-inputs"_s, u"T"_s, u"--json"_s}).output.toUtf8()).array();
        QCOMPARE(inputs.size(), 2);
        QCOMPARE(inputs[0][u"filter"].toString(), u"*.txt"_s);
        QCOMPARE(inputs[0][u"placeholder"].toString(), u"%E"_s);
        QCOMPARE(inputs[1][u"name"].toString(), u"-mp"_s);
    }

    void runsLaunchers()
    {
        const BatchSuite suite;
        suite.write(u"work/p.prj"_s, "VersionTag 45\nStartProjectMarker\nname=p\nsourceDir=.\noutputDir=out\n"
                                     "*project=ORVC\na.c\nEndContainedFilesMarker\nEndOfProjectFile\n");
        const QStringList command{u"-run"_s, u"Some tool"_s, u"-prj"_s, u"p.prj"_s, u"-c"_s};
        const ProgramResult good = suite.run(command);
        QCOMPARE(good.output, u"tool -n ORVC\n"_s);
        QCOMPARE(good.status, 0);
        QCOMPARE(suite.run(command, {{u"TOOL_STATUS"_s, u"7"_s}}).status, 7);
        const ProgramResult unknown = suite.run({u"-run"_s, u"x"_s, u"-prj"_s, u"p.prj"_s});
        QCOMPARE(unknown.status, 2);
        QVERIFY2(unknown.errors.contains("Some tool"_L1), qPrintable(unknown.errors));
        const ProgramResult noProject = suite.run({u"-run"_s, u"Some tool"_s, u"-prj"_s, u"q.prj"_s});
        QCOMPARE(noProject.status, 2);
    }

    // While one converts, no other does: the others say so and take nothing away. One that comes after its end may win
    // in turn.
    void oneOfManyWins()
    {
        const BatchSuite suite("append $0.log begin; pause 1000; mark $1; append $0.log end");
        suite.write(u"work/p.prj"_s, "old");
        std::vector<std::unique_ptr<QProcess>> runs;
        for (int i = 0; i < 20; ++i) {
            QProcess& run = *runs.emplace_back(std::make_unique<QProcess>());
            run.setWorkingDirectory(suite.path(u"work"_s));
            run.start(suite.path(u"bin/ProjectCreation"_s),
                      {u"-batch"_s, u"-prj"_s, u"p.prj"_s, u"-type"_s, u"T"_s, u"-overwrite"_s});
        }
        int winners = 0;
        for (const auto& run : runs) {
            QVERIFY(run->waitForFinished());
            winners += int(run->exitCode() == 0);
            const QString said = QString::fromLocal8Bit(run->readAllStandardError());
            QCOMPARE(said.contains("Another conversion"_L1), run->exitCode() != 0);
        }
        QVERIFY(winners >= 1);
        QVERIFY(suite.read(suite.project()).toInt() > 0);
        QCOMPARE(suite.read(u"convert.log"_s), QByteArray("begin\nend\n").repeated(winners));
        QCOMPARE(QDir(suite.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"p.prj"_s});
    }
};

KOVRA_TEST(BuildServerTest)
#include "BuildServerTest.moc"

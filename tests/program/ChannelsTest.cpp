// SPDX-License-Identifier: MIT
#include "Installation.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

/// Standard channels that are closed, full, or read by nobody, and terminals.
class ChannelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfLostOutput_data()
    {
        const TestRows<QString, int> row("command", "status");
        row("full", u"%1 -batch -list-types --json > /dev/full"_s, 1);
        row("closed", u"%1 -batch -list-types >&-"_s, 1);
        row("usage, full", u"%1 -batch -help > /dev/full"_s, 1);
        row("version, closed", u"%1 --version >&-"_s, 1);
        row("nobody reads", u"(sleep 0.2; %1 -batch -list-types; echo $? > status) | true; exit $(cat status)"_s, 1);
        row("conversion, full", u"%1 -batch -prj p.prj -type T > /dev/full"_s, 1);
        row("conversion, all closed", u"%1 -batch -prj p.prj -type T -quiet <&- >&- 2>&-"_s, 0);
        row("trace, all closed", u"%1 -batch -prj p.prj -type T -quiet -tracefile t.txt <&- >&- 2>&-"_s, 0);
    }

    void tellsOfLostOutput()
    {
        const auto [command, status] = fetched<QString, int>("command", "status");
        const Installation suite;
        install(suite, "print chatter; print-error chatter; write $1 new");
        const ProgramResult result = runProgram(u"sh"_s, {u"-c"_s, command.arg(suite.path(u"bin/ProjectCreation"_s))},
                                                {{u"LC_ALL"_s, u"C.UTF-8"_s}}, suite.path(u"work"_s));
        QCOMPARE(result.status, status);
        const QByteArray project = suite.read(u"work/p.prj"_s);
        QVERIFY2(project.isEmpty() || project == "new\n", project.constData());
        QVERIFY(!suite.read(u"work/t.txt"_s).contains("chatter"));
    }

    // A child without a terminal is neither stopped for writing to one nor waits for a password.
    void needsNoTerminal()
    {
        for (const char* script : {"print chatter; write $1 new", "#!read x < /dev/tty; echo new > \"$1\""}) {
            const Installation suite;
            install(suite, script);
            const QString command =
                u"stty tostop; exec "_s + suite.path(u"bin/ProjectCreation"_s) + u" -batch -prj p.prj -type T"_s;
            const ProgramResult result = runProgram(u"script"_s, {u"-qec"_s, command, u"/dev/null"_s},
                                                    {{u"LC_ALL"_s, u"C.UTF-8"_s}}, suite.path(u"work"_s));
            QVERIFY2(result.status == 0, qPrintable(result.output));
            QCOMPARE(suite.read(u"work/p.prj"_s), QByteArray("new\n"));
        }
    }

    void keepsTheFilesOfOtherOptions()
    {
        const Installation suite;
        install(suite, "write $1 new");
        const QByteArray before = suite.read(u"xml/settings.xml"_s);
        const QString file = suite.path(u"xml/settings.xml"_s);
        const ProgramResult result =
            runProgram(suite.path(u"bin/ProjectCreation"_s), {u"-batch"_s, u"-list-types"_s, u"-tracefile"_s, file});
        QCOMPARE(suite.read(u"xml/settings.xml"_s), before);
        QVERIFY2(result.errors.contains(file), qPrintable(result.errors));
    }

    void findsItsFilesThroughALink()
    {
        const Installation suite;
        install(suite, "write $1 new");
        const QString link = suite.path(u"work/pc"_s);
        QVERIFY(QFile::link(suite.path(u"bin/ProjectCreation"_s), link));
        const ProgramResult result = runProgram(link, {u"-batch"_s, u"-list-types"_s});
        QCOMPARE(result.output, u"T  [ORVC]\n"_s);
    }

private:
    static void install(const Installation& suite, const QByteArray& script)
    {
        suite.define("<projectCreator><name>T</name><orvcProject>1</orvcProject><exe>" +
                     suite.writeChild(u"convert"_s, script).toUtf8() + "</exe><exeargs>%PF</exeargs></projectCreator>");
        suite.placeProgram(QStringLiteral(PROGRAM), u"bin/ProjectCreation"_s);
    }
};

KOVRA_TEST(ChannelsTest)
#include "ChannelsTest.moc"

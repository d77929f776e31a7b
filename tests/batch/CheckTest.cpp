// SPDX-License-Identifier: MIT
#include "definitions/KOVRASettingsFile.h"
#include "definitions/XmlBounds.h"
#include "Installation.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

/// Mistakes in a definitions file, and files that are made to cost much.
class CheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheLineOfAMistake_data()
    {
        const TestRows<QByteArray, QString> row("line", "says");
        row("unknown element", "<projectCreater/>", u"<projectCreater> is not known"_s);
        row("unknown child", "<projectCreator><nam>x</nam></projectCreator>", u"<nam> is not known"_s);
        row("no name", "<projectCreator/>", u"no <name>"_s);
        row("no analyser", "<projectCreator><name>x</name><exe>sh</exe></projectCreator>", u"serves no analyser"_s);
        row("a word for a number", "<projectCreator><orvcProject>yes</orvcProject></projectCreator>",
            u"\"yes\" counts as 0"_s);
        row("unknown kind", "<projectCreator><inputData><inputType>FIEL</inputType></inputData></projectCreator>",
            u"\"FIEL\" is not known"_s);
        row("unknown analyser", "<projectCreator><messagePersonality TYPE='c'/></projectCreator>", u"TYPE=\"c\""_s);
        row("neither file nor number",
            "<projectCreator><inputData><mustBeSet>FILE</mustBeSet></inputData></projectCreator>",
            u"FILE_MUST_EXIST"_s);
        row("placeholder of nobody", "<projectCreator><exeargs>-a %NONE</exeargs></projectCreator>",
            u"%NONE in <exeargs>"_s);
        row("input for nothing",
            "<projectCreator><inputData><displayName>In</displayName><argDef>%X</argDef></inputData></projectCreator>",
            u"\"In\" reaches no argument"_s);
        row("missing program", "<projectCreator><name>N</name><exe>/no/program</exe></projectCreator>",
            QDir::toNativeSeparators(u"/no/program"_s));
        row("missing tool",
            "<applicationPage><application name='N'><exe>/no/tool</exe></application></applicationPage>",
            QDir::toNativeSeparators(u"/no/tool"_s));
        row("unknown word of a launcher",
            "<applicationPage><application name='N'><colour>#fff</colour><color>red</color></application>"
            "</applicationPage>",
            u"<color> is not known in <application>"_s);
        row("broken", "<a></b>", u"reading ends here"_s);
        row("document type", "<!DOCTYPE settings>", u"document type declaration is refused"_s);
    }

    void tellsTheLineOfAMistake()
    {
        const auto [line, says] = fetched<QByteArray, QString>("line", "says");
        const Installation suite;
        const QString file =
            suite.write(u"my.xml"_s, "<?xml version=\"1.0\"?>\n<settings>\n" + line + "\n</settings>\n");
        const ProgramResult result = runProgram(QStringLiteral(PROGRAM), {u"-batch"_s, u"-check"_s, file});
        QCOMPARE(result.status, 1);
        const QStringList lines = result.output.split(u'\n').filter(says);
        QVERIFY2(!lines.isEmpty(), qPrintable(result.output + result.errors));
        QVERIFY2(lines[0].startsWith(file + u":3:"_s), qPrintable(lines[0]));
    }

    void findsNothingInAGoodFile()
    {
        const Installation suite;
        const QByteArray tool = suite.writeChild(u"tool"_s, "").toUtf8();
        const QString file = suite.write(
            u"my.xml"_s,
            QByteArray("<settings><LINUX><projectCreator><name>N</name><exe>%1</exe><exeargs>%PF %CP+ %IN</exeargs>"
                       "<orvcProject>1</orvcProject><inputData><displayName>In</displayName>"
                       "<inputType TYPE='C_ONLY' COLUMNS='2'>EDIT</inputType><defaultValue TYPE='C'>x</defaultValue>"
                       "<mustBeSet>1</mustBeSet><argDef>%IN</argDef></inputData></projectCreator></LINUX>"
                       "<applicationPage title='t'><columns>2</columns><application name='N'><exe>%1</exe>"
                       "<condition name='c' action='start'/></application></applicationPage></settings>")
                .replace("%1", tool));
        const ProgramResult result = runProgram(QStringLiteral(PROGRAM), {u"-batch"_s, u"-check"_s, file});
        QCOMPARE(result.output, QString());
        QCOMPARE(result.status, 0);
    }

    void refusesWhatCostsWithoutBound_data()
    {
        const TestRows<QByteArray, qint64> row("document", "line");
        QByteArray attributes = "<s>\n<e";
        for (int i = 0; i < 100'000; ++i) {
            attributes += " a" + QByteArray::number(i) + "=''";
        }
        row("attributes", attributes + "/></s>", 2);
        row("entities",
            "<?xml version='1.0'?>\n\n<!DOCTYPE s [<!ENTITY e '" + QByteArray(4096, 'x') + "'>]>\n<s>" +
                QByteArray("&e;").repeated(500'000) + "</s>",
            3);
    }

    void refusesWhatCostsWithoutBound()
    {
        const auto [document, line] = fetched<QByteArray, qint64>("document", "line");
        KOVRASettingsFile definitions;
        definitions.readDocument(document, {});
        QCOMPARE(definitions.lastError.line, line);
        QVERIFY(!definitions.lastError.reason.isEmpty());
    }

    // Not in a comment, a section or a value, and not over many elements.
    void boundsMissNothingElse()
    {
        const QByteArray attributes = QByteArray(" a=\"\"").repeated(2000);
        for (const QByteArray& document :
             {"<s><!-- <!DOCTYPE x> " + attributes + " --></s>", "<s><![CDATA[<!DOCTYPE x><e" + attributes + "]]></s>",
              "<s a='> <!DOCTYPE " + QByteArray("\"").repeated(5000) + "'/>",
              QByteArray("<e a='1' b='2'/>").repeated(10'000)}) {
            QCOMPARE(XmlBounds::check(document).reason, QString());
        }
    }
};

KOVRA_TEST(CheckTest)
#include "CheckTest.moc"

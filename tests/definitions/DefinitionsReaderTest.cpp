// SPDX-License-Identifier: MIT
#include "definitions/KOVRASettingsFile.h"
#include "definitions/Placeholders.h"
#include "TestMain.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void read(KOVRASettingsFile& settings, const QByteArray& elements)
{
    settings.readDocument("<settings>" + elements + "</settings>", Places{u"/suite"_s, u"/orvc"_s, u"/orvcpp"_s});
}

} // namespace

class DefinitionsReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsProjectCreators()
    {
        KOVRASettingsFile settings;
        read(settings, R"(
            <projectCreator>
              <name>First</name><name>Make  file</name>
              <exe>%ORVC%/bin//conv</exe>
              <exeargs>  -a  %PF
                 -b </exeargs>
              <orvcProject>1</orvcProject><orvcProject>0</orvcProject><orvcppProject>x</orvcppProject>
              <compilerPersonality TYPE="C">%ORVC%/c.p_c</compilerPersonality>
              <compilerPersonality TYPE="CPP">%ORVCPP%/cpp.p_c</compilerPersonality>
              <messagePersonality TYPE="c">lost</messagePersonality>
              <WINDOWS_PLATFORM><exe>windows.exe</exe><unknown><name>no</name></unknown></WINDOWS_PLATFORM>
              <LINUX><inputData><displayName>Linux only</displayName></inputData></LINUX>
              <unknown><inputData><displayName>Found inside</displayName></inputData></unknown>
            </projectCreator>
            <group><projectCreator><name>Second</name></projectCreator></group>)");
        QCOMPARE(settings.projectCreators.size(), size_t(2));
        const ProjectCreatorData& creator = *settings.projectCreators[0];
        QCOMPARE(creator.name, u"Make  file"_s);
        QCOMPARE(creator.exe, u"/orvc/bin/conv"_s);
        QCOMPARE(creator.exeArgs, (QStringList{u"-a"_s, u"%PF"_s, u"-b"_s}));
        QVERIFY(creator.orvcProject && !creator.orvcppProject);
        QCOMPARE(creator.cCompilerPersonality, u"/orvc/c.p_c"_s);
        QCOMPARE(creator.cppCompilerPersonality, u"/orvcpp/cpp.p_c"_s);
        QVERIFY(creator.hasMessagePersonality && !creator.hasAnalyserPersonality);
        QVERIFY(creator.cMessagePersonality.isEmpty() && creator.cppMessagePersonality.isEmpty());
        QCOMPARE(creator.inputData.size(), size_t(2));
        QCOMPARE(creator.inputData[0]->displayName, u"Linux only"_s);
        QCOMPARE(creator.inputData[1]->displayName, u"Found inside"_s);
        QCOMPARE(settings.lastError.line, qint64(0));
    }

    void readsInputs()
    {
        KOVRASettingsFile settings;
        read(settings, R"(
            <projectCreator><name>T (x)</name>
              <inputData><displayName>Plain</displayName></inputData>
              <inputData><displayName>Größe: a-b</displayName><inputType>FILE</inputType>
                <hoverHelp>tip</hoverHelp><ext>*.json</ext><mustBeSet>FILE_MUST_EXIST</mustBeSet>
                <argDef PRE="-in">%In</argDef><defaultValue>%I%/x</defaultValue>
                <defaultValue TYPE="CPP">cpp</defaultValue></inputData>
              <inputData><inputType SEP="," COLUMNS="2" TYPE="C_ONLY">GROUP</inputType><displayName>G</displayName>
                <inputData><inputType OUT_STR="-a" TYPE="CPP_ONLY">CHECK</inputType><mustBeSet>2</mustBeSet></inputData>
                <inputData><inputType>RADIO</inputType><inputType TYPE="other">nonsense</inputType></inputData>
              </inputData>
            </projectCreator>)");
        const ProjectCreatorData& creator = *settings.projectCreators.at(0);
        const ArgumentDefinition& plain = *creator.inputData.at(0);
        QCOMPARE(plain.inputType, InputType::Edit);
        QCOMPARE(plain.separator, u" "_s);
        QCOMPARE(plain.columns, 1);
        QCOMPARE(plain.extension, u"*"_s);
        const ArgumentDefinition& file = *creator.inputData.at(1);
        QCOMPARE(file.inputType, InputType::File);
        QVERIFY(file.mustBeSet && file.fileMustExist && file.separator.isEmpty() && file.columns == 0);
        QCOMPARE(file.prefix + file.argument, u"-in%In"_s);
        QCOMPARE(file.cDefaultValue, u"/suite/x"_s);
        QCOMPARE(file.cppDefaultValue, u"cpp"_s);
        QCOMPARE(file.key, u"GrößeabInTx"_s);
        const ArgumentDefinition& group = *creator.inputData.at(2);
        QVERIFY(group.cOnly && !group.cppOnly && group.separator == ","_L1 && group.columns == 2);
        const ArgumentDefinition& check = *group.children.at(0);
        QVERIFY(check.cppOnly && check.mustBeSet && !check.fileMustExist);
        QCOMPARE(check.outputString, u"-a"_s);
        // An unknown kind leaves the one before it.
        QCOMPARE(group.children.at(1)->inputType, InputType::Radio);
    }

    void readsTheOtherRecords()
    {
        KOVRASettingsFile settings;
        read(settings, R"(
            <compliance_module><product>ORVCPP</product><name>M</name><location>%ORVC%\rules\..\m</location></compliance_module>
            <compliance_module><product>orvc</product></compliance_module><compliance_module/>
            <codingStandard name="S" language="C++"><description>a\b</description></codingStandard>
            <codingStandard name="T" language="c++"><messagePersonality>%I%\m</messagePersonality></codingStandard>
            <crossModuleAnalysis><exe>%I%\bin\cma</exe><exeargs> -x  y</exeargs></crossModuleAnalysis>
            <applicationPage title="A"><title>t</title><columns>four</columns><buttonwidth>7</buttonwidth></applicationPage>
            <display_options title="ignored"/><reportsPage title="R"/>)");
        QCOMPARE(settings.complianceModules.size(), size_t(3));
        QVERIFY(!settings.complianceModules[0]->isC && settings.complianceModules[1]->isC &&
                settings.complianceModules[2]->isC);
        QCOMPARE(settings.complianceModules[0]->location, u"/orvc/m"_s);
        QVERIFY(!settings.codingStandards.at(0)->isC && settings.codingStandards.at(1)->isC);
        QCOMPARE(settings.codingStandards[0]->description, u"a/b"_s);
        QCOMPARE(settings.codingStandards[1]->messagePersonality, u"/suite/m"_s);
        QCOMPARE(settings.crossModuleAnalyses.at(0)->exe, u"/suite/bin/cma"_s);
        QCOMPARE(settings.crossModuleAnalyses[0]->exeArgs, (QStringList{QString(), u"-x"_s, u"y"_s}));
        QCOMPARE(settings.applicationPages.size(), size_t(2));
        QCOMPARE(settings.applicationPages[0]->titleAttribute, u"A"_s);
        QVERIFY(settings.applicationPages[0]->columns == 0 && settings.applicationPages[0]->buttonWidth == 7);
        QVERIFY(settings.applicationPages[1]->titleAttribute.isEmpty());
        QCOMPARE(settings.reportsPages.size(), size_t(1));
    }

    void stopsAtErrors_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<int>("creators");
        QTest::addColumn<int>("line");
        const QByteArray record = "<projectCreator><name>A</name></projectCreator>\n";
        QTest::newRow("empty") << QByteArray() << 0 << 1;
        QTest::newRow("not XML") << QByteArray("hello") << 0 << 1;
        QTest::newRow("truncated") << "<s>" + record + record.left(20) << 2 << 2;
        QTest::newRow("wrong end") << "<s>" + record + "</t>" + record << 1 << 2;
        QTest::newRow("elements inside a coding standard's child")
            << "<s>\n" + record + "<codingStandard><x><y/></x></codingStandard>" + record + "</s>" << 1 << 3;
        QTest::newRow("fields nested without end")
            << "<s><projectCreator>" + QByteArray("<inputData>").repeated(100000) << 1 << 1;
    }

    void stopsAtErrors()
    {
        QFETCH(const QByteArray, document);
        QFETCH(const int, creators);
        QFETCH(const int, line);
        KOVRASettingsFile settings;
        settings.readDocument(document, {});
        QCOMPARE(int(settings.projectCreators.size()), creators);
        QCOMPARE(int(settings.lastError.line), line);
        QVERIFY(!settings.lastError.reason.isEmpty());
    }
};

KOVRA_TEST(DefinitionsReaderTest)
#include "DefinitionsReaderTest.moc"

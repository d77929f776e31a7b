// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "batch/BatchInputs.h"
#include "definitions/KOVRASettingsFile.h"
#include "definitions/Placeholders.h"
#include "Installation.h"
#include "launchers/PageData.h"
#include "launchers/PageReader.h"
#include "launchers/RunAppData.h"
#include "process/ArgumentSubstitution.h"
#include "process/WizardState.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString sourceFile(const QString& name)
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The text of the guide's block that begins with this line.
QString guideBlock(const QString& fence)
{
    return sourceFile(u"docs/settings-xml.md"_s).section(u"\n```"_s + fence + u'\n', 1, 1).section(u"\n```\n"_s, 0, 0);
}

} // namespace

/// The reader takes every definitions file as docs/settings-xml.md and docs/settings.xsd say.
class DefinitionsReaderTest : public QObject
{
    Q_OBJECT

    Installation suite;

private Q_SLOTS:
    void initTestCase() { suite.start(); }

    void expandsPlaceholders()
    {
        QSettings(QSettings::SystemScope, u"KOVRA"_s, u"App"_s).setValue(u"Key"_s, u"kovra"_s);
        QSettings(QSettings::SystemScope, u"Other"_s, u"App"_s).setValue(u"Key"_s, u"other"_s);
        const std::pair<QString, QString> rows[] = {{u"%ORVC%/personalities"_s, u"C:/Orv/personalities"_s},
                                                    {u"%ORVCPP%/x"_s, u"D:/Orv/x"_s},
                                                    // Every occurrence, but of one kind only.
                                                    {u"%I%/%ORVC%"_s, u"/suite/%ORVC%"_s},
                                                    {u"%I%/%I%"_s, u"/suite/suite"_s},
                                                    {u"%HOME%/a/%TMP%"_s, u"/home/me/a/%TMP%"_s},
                                                    {u"%R%App%Key"_s, u"kovra"_s},
                                                    {u"%R%App%Key%"_s, u"kovra"_s},
                                                    {u"%R%Other%App%Key%/a%/b"_s, u"other/a/b"_s},
                                                    {u"%R%App%None"_s, QString()},
                                                    {u"%R%App"_s, u"%R%App"_s},
                                                    // Only what lies in an installation is cleaned.
                                                    {u"%HOME%//a"_s, u"/home/me//a"_s},
                                                    {u"100%"_s, u"100%"_s},
                                                    {u"plain//text"_s, u"plain//text"_s}};
        const Places places{u"/suite"_s, u"C:/Orv/"_s, u"D:/Orv"_s};
        for (const auto& [text, expanded] : rows) {
            QCOMPARE(ExpandPlaceholders(text, places, {u"HOME=/home/me"_s, u"TMP=/tmp"_s}), expanded);
        }
    }

    void readsConversionTypes()
    {
        KOVRASettingsFile settings;
        settings.readDocument(R"(<settings>
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
            <group><projectCreator><name>T (x)</name>
              <inputData><displayName>Plain</displayName></inputData>
              <inputData><displayName>Größe: a-b</displayName><inputType>FILE</inputType>
                <hoverHelp>tip</hoverHelp><ext>*.json</ext><mustBeSet>FILE_MUST_EXIST</mustBeSet>
                <argDef PRE="-in">%In</argDef><defaultValue>%I%/x</defaultValue>
                <defaultValue TYPE="CPP">cpp</defaultValue></inputData>
              <inputData><inputType SEP="," COLUMNS="2" TYPE="C_ONLY">GROUP</inputType><displayName>G</displayName>
                <inputData><inputType OUT_STR="-a" TYPE="CPP_ONLY">CHECK</inputType><mustBeSet>2</mustBeSet></inputData>
                <inputData><inputType>RADIO</inputType><inputType TYPE="other">nonsense</inputType></inputData>
              </inputData>
            </projectCreator></group></settings>)",
                              {.places = {u"/suite"_s, u"/orvc"_s, u"/orvcpp"_s}, .readPage = readLauncherPage});
        QCOMPARE(settings.projectCreators.size(), size_t(2));
        const ProjectCreatorData& creator = *settings.projectCreators[0];
        QCOMPARE(creator.name + creator.exe, u"Make  file/orvc/bin/conv"_s);
        QCOMPARE(creator.exeArgs, (QStringList{u"-a"_s, u"%PF"_s, u"-b"_s}));
        QVERIFY(creator.orvcProject && !creator.orvcppProject);
        QCOMPARE(creator.cCompilerPersonality + creator.cppCompilerPersonality, u"/orvc/c.p_c/orvcpp/cpp.p_c"_s);
        QVERIFY(creator.hasMessagePersonality && !creator.hasAnalyserPersonality);
        QCOMPARE(creator.cMessagePersonality + creator.cppMessagePersonality, QString());
        QCOMPARE(creator.inputData.size(), size_t(2));
        QCOMPARE(creator.inputData[0]->displayName + creator.inputData[1]->displayName, u"Linux onlyFound inside"_s);

        const ArgumentDefinitions& inputs = settings.projectCreators[1]->inputData;
        const ArgumentDefinition& plain = *inputs.at(0);
        QVERIFY(plain.inputType == InputType::Edit && plain.columns == 1);
        QCOMPARE(plain.separator + plain.extension, u" *"_s);
        const ArgumentDefinition& file = *inputs.at(1);
        QVERIFY(file.inputType == InputType::File && file.mustBeSet && file.fileMustExist);
        QVERIFY(file.separator.isEmpty() && file.columns == 0);
        QCOMPARE((QStringList{file.prefix, file.argument, file.cDefaultValue, file.cppDefaultValue, file.key}),
                 (QStringList{u"-in"_s, u"%In"_s, u"/suite/x"_s, u"cpp"_s, u"GrößeabInTx"_s}));
        const ArgumentDefinition& group = *inputs.at(2);
        QVERIFY(group.cOnly && !group.cppOnly && group.separator == ","_L1 && group.columns == 2);
        const ArgumentDefinition& check = *group.children.at(0);
        QVERIFY(check.cppOnly && check.mustBeSet && !check.fileMustExist && check.outputString == "-a"_L1);
        // An unknown kind leaves the one before it.
        QCOMPARE(group.children.at(1)->inputType, InputType::Radio);
    }

    void readsTheOtherRecords()
    {
        KOVRASettingsFile settings;
        settings.readDocument(R"(<settings>
            <compliance_module><product>ORVCPP</product><name>M</name><location>%ORVC%\rules\..\m</location></compliance_module>
            <compliance_module><product>orvc</product></compliance_module><compliance_module/>
            <codingStandard name="S" language="C++"><description>a\b</description></codingStandard>
            <codingStandard name="T" language="c++"><messagePersonality>%I%\m</messagePersonality></codingStandard>
            <crossModuleAnalysis><exe>%I%\bin\cma</exe><exeargs> -x  y</exeargs></crossModuleAnalysis>
            <applicationPage title="A"><title>t</title><columns>four</columns><buttonwidth>7</buttonwidth></applicationPage>
            <display_options title="ignored"/><reportsPage title="R"/></settings>)",
                              {.places = {u"/suite"_s, u"/orvc"_s, u"/orvcpp"_s}, .readPage = readLauncherPage});
        const auto& modules = settings.complianceModules;
        QVERIFY(modules.size() == 3 && !modules[0]->isC && modules[1]->isC && modules[2]->isC);
        QCOMPARE(modules[0]->location, u"/orvc/m"_s);
        const auto& standards = settings.codingStandards;
        QVERIFY(standards.size() == 2 && !standards[0]->isC && standards[1]->isC);
        QCOMPARE(standards[0]->description + standards[1]->messagePersonality, u"a/b/suite/m"_s);
        QCOMPARE(settings.crossModuleAnalyses.at(0)->exe, u"/suite/bin/cma"_s);
        QCOMPARE(settings.crossModuleAnalyses[0]->exeArgs, (QStringList{QString(), u"-x"_s, u"y"_s}));
        const auto& pages = settings.applicationPages;
        QVERIFY(pages.size() == 2 && settings.reportsPages.size() == 1);
        QVERIFY(pages[0]->columns == 0 && pages[0]->buttonWidth == 7);
        QCOMPARE(pages[0]->titleAttribute + pages[1]->titleAttribute, u"A"_s);
    }

    void stopsAtErrors()
    {
        const QByteArray record = "<projectCreator><name>A</name></projectCreator>\n";
        const std::tuple<QByteArray, int, int> rows[] = {
            {{}, 0, 1},
            {"not XML", 0, 1},
            {"<s>" + record + record.left(20), 2, 2},
            {"<s>" + record + "</t>" + record, 1, 2},
            {"<s>\n" + record + "<codingStandard><x><y/></x></codingStandard>" + record + "</s>", 1, 3},
            {"<s><projectCreator>" + QByteArray("<inputData>").repeated(100000), 1, 1}};
        for (const auto& [document, creators, line] : rows) {
            KOVRASettingsFile settings;
            settings.readDocument(document, {});
            QVERIFY2(int(settings.projectCreators.size()) == creators, document.left(200));
            QVERIFY2(int(settings.lastError.line) == line, document.left(200));
            QVERIFY(!settings.lastError.reason.isEmpty());
        }
    }

    void convertsAndLaunchesTheWorkedExample()
    {
        KOVRASettingsFile settings;
        settings.readDocument(guideBlock(u"xml worked-example"_s).toUtf8(), {.readPage = readLauncherPage});
        QCOMPARE(settings.lastError.reason, QString());
        ProjectCreatorData& creator = *settings.projectCreators.at(0);
        QVERIFY(creator.orvcProject && creator.orvcppProject && creator.exe == "listprj"_L1);
        QCOMPARE(creator.inputData.at(1)->key, u"OutputfolderIN_OUTPUTMyfilelist"_s);
        QVERIFY(creator.inputData.at(0)->fileMustExist && creator.inputData.at(1)->mustBeSet);
        BatchInputs inputs(creator.inputData, true);
        QCOMPARE(inputs.set(u"File list=files.txt"_s).problem, QString());
        QCOMPARE(inputs.set(u"Order/Sorted=1"_s).problem, QString());
        for (const auto& input : creator.inputData) {
            InputValues::remember(*input, inputs.source());
        }
        WizardState state;
        state.projectCreator = &creator;
        state.fileDir = u"/home/me/first file"_s;
        state.fileName = u"demo"_s;
        state.isORVC = true;
        QCOMPARE(conversionArguments(state), guideBlock(u"text worked-example-arguments"_s).split(u'\n'));

        const PageData& page = *settings.applicationPages.at(0);
        RunAppData& show = *page.applications.at(0);
        RunAppData& count = *page.applications.at(1);
        QCOMPARE(show.name + show.cExe + show.cppExe, u"Show the\nproject filecatcat"_s);
        QVERIFY(show.displayMode == TextDisplay && QFile::exists(show.rightImage));
        QCOMPARE(count.exeargs, (QStringList{u"-l"_s, u"%PF"_s}));
        QVERIFY(count.startsDisabled && !show.startsDisabled);
        QCOMPARE(page.conditions.value(u"seen"_s),
                 (QMap<RunAppData*, QString>{{&show, u"start"_s}, {&count, u"enable"_s}}));
    }

    // What the schema accepts at its widest, the reader takes to the last record, and none of it is lost.
    void readsWhatTheSchemaAccepts()
    {
        KOVRASettingsFile settings;
        settings.readDocument(sourceFile(u"tests/definitions/schema/accepted-everything.xml"_s).toUtf8(),
                              {.readPage = readLauncherPage});
        QCOMPARE(settings.lastError.reason, QString());
        QVERIFY(settings.crossModuleAnalyses.size() == 2 && settings.complianceModules.size() == 2);
        QVERIFY(settings.codingStandards.size() == 2 && settings.reportsPages.size() == 1);
        QVERIFY(settings.projectCreators.size() == 2 && settings.applicationPages.size() == 2);
        const ArgumentDefinitions& inputs = settings.projectCreators[1]->inputData;
        QVERIFY(inputs.size() == 5 && inputs[0]->cppOnly && inputs[2]->cOnly);
        QVERIFY(inputs[3]->mustBeSet && inputs[4]->inputType == InputType::Radio);
        QCOMPARE(inputs[0]->children.at(0)->displayName, u"Only here"_s);
        const PageData& page = *settings.applicationPages[1];
        QVERIFY(page.columns == 12 && page.conditions.size() == 3);
        const RunAppData& launcher = *page.applications.at(1);
        QCOMPARE(launcher.cExe + launcher.cppExe, u"xy"_s);
        QCOMPARE(launcher.aboveImage + launcher.belowImage, u":up_longarrow.xpm:down_doublearrow.xpm"_s);
        QCOMPARE(launcher.leftImage + launcher.rightImage, u":left_cornerarrowupaway.xpm:right_longdoublearrow.xpm"_s);
        QCOMPARE(launcher.dependency + launcher.exeargs, (QStringList{u"one"_s, u"two words"_s, u"%P+"_s, u"-x"_s}));
    }

    // Every kind of arrow that the schema names has its pictures, and the schema leaves none out.
    void hasEveryArrow()
    {
        const QRegularExpression kinds(u"enumeration value=\"((corner)?\\w*arrow\\w*)\""_s);
        QStringList named;
        for (const QRegularExpressionMatch& kind : kinds.globalMatch(sourceFile(u"docs/settings.xsd"_s))) {
            // Corners lie beside a button only.
            const QStringList upright = kind.captured(2).isEmpty() ? QStringList{u"up"_s, u"down"_s} : QStringList();
            for (const QString& direction : QStringList{u"left"_s, u"right"_s} + upright) {
                named += direction + u'_' + kind.captured(1) + u".xpm"_s;
            }
        }
        named.sort();
        QCOMPARE(named, QDir(u":/"_s).entryList({u"*arrow*.xpm"_s}, QDir::Files, QDir::Name));
    }
};

KOVRA_TEST(DefinitionsReaderTest)
#include "DefinitionsReaderTest.moc"

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
#include "RecordTexts.h"
#include "TestMain.h"

#include <QRegularExpression>
#include <QSettings>

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

/// Definitions written for Linux: on Windows its sections and Windows' change places.
QByteArray forThisSystem(QByteArray text)
{
#ifdef Q_OS_WIN
    return text.replace("LINUX>", "OTHER>")
        .replace("WINDOWS_PLATFORM>", "LINUX>")
        .replace("OTHER>", "WINDOWS_PLATFORM>");
#else
    return text;
#endif
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
        const auto expanded = [](const QString& text) {
            const Places places{u"/suite"_s, u"C:/Orv/"_s, u"D:/Orv"_s};
            return ExpandPlaceholders(text, places, {u"HOME=/home/me"_s, u"TMP=/tmp"_s});
        };
        QCOMPARE(expanded(u"%ORVC%/personalities"_s), u"C:/Orv/personalities"_s);
        QCOMPARE(expanded(u"%ORVCPP%/x"_s), u"D:/Orv/x"_s);
        // Every occurrence, but of one kind and one variable only.
        QCOMPARE(expanded(u"%I%/%I%"_s), u"/suite/suite"_s);
        QCOMPARE(expanded(u"%I%/%ORVC%"_s), u"/suite/%ORVC%"_s);
        QCOMPARE(expanded(u"%HOME%/a/%TMP%"_s), u"/home/me/a/%TMP%"_s);
        // Stored values, also of another organisation.
        QCOMPARE(expanded(u"%R%App%Key"_s), u"kovra"_s);
        QCOMPARE(expanded(u"%R%App%Key%"_s), u"kovra"_s);
        QCOMPARE(expanded(u"%R%Other%App%Key%/a%/b"_s), u"other/a/b"_s);
        QCOMPARE(expanded(u"%R%App%None"_s), QString());
        QCOMPARE(expanded(u"%R%App"_s), u"%R%App"_s);
        // Only installations are cleaned.
        for (const auto& [text, same] : {std::pair{u"%HOME%//a"_s, u"/home/me//a"_s},
                                         {u"100%"_s, u"100%"_s},
                                         {u"plain//text"_s, u"plain//text"_s}}) {
            QCOMPARE(expanded(text), same);
        }
    }

    void readsConversionTypes()
    {
        KOVRASettingsFile settings;
        settings.readDocument(forThisSystem(R"(<settings>
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
            </projectCreator></group></settings>)"),
                              {.places = {u"/suite"_s, u"/orvc"_s, u"/orvcpp"_s}, .readPage = readLauncherPage});
        QCOMPARE(described(settings.projectCreators),
                 u"[name=Make  file forC=true exe=/orvc/bin/conv args=-a,%PF,-b cc=/orvc/c.p_c cppc=/orvcpp/cpp.p_c "
                 "hasM=true hasC=true][name=T (x)]"_s);
        QCOMPARE(described(settings.projectCreators[0]->inputData),
                 u"[name=Linux only key=LinuxonlyMakefile][name=Found inside key=FoundinsideMakefile]"_s);
        // An unknown kind leaves the one before it.
        QCOMPARE(
            described(settings.projectCreators[1]->inputData),
            u"[name=Plain key=PlainTx]"
            "[name=Größe: a-b kind=file key=GrößeabInTx help=tip needed=true exists=true ext=*.json sep= columns=0 "
            "prefix=-in arg=%In c=/suite/x cpp=cpp]"
            "[name=G kind=group key=GTx sep=, columns=2 forC=true fields=[kind=check key=Tx needed=true out=-a "
            "sep= columns=0 forCpp=true]"
            "[kind=radio key=Tx sep= columns=0]]"_s);
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
        QCOMPARE(described(settings.complianceModules), u"[name=M forC=false place=/orvc/m][][]"_s);
        QCOMPARE(described(settings.codingStandards), u"[name=S forC=false about=a/b][name=T m=/suite/m]"_s);
        settings.codingStandards[0]->selected = false;
        QCOMPARE(settings.standardFiles(), (QStringList{u"/suite/m"_s, {}, {}}));
        QCOMPARE(described(settings.crossModuleAnalyses), u"[exe=/suite/bin/cma args=,-x,y]"_s);
        QCOMPARE(described(settings.applicationPages), u"[attribute=A title=t columns=0 width=7][]"_s);
        QCOMPARE(described(settings.reportsPages), u"[attribute=R]"_s);
    }

    void stopsAtErrors_data()
    {
        const QByteArray record = "<projectCreator><name>A</name></projectCreator>\n";
        const TestRows<QByteArray, size_t, int> row("document", "types", "line");
        row("empty", {}, 0, 1);
        row("not XML", "not XML", 0, 1);
        row("cut", "<s>" + record + record.left(20), 2, 2);
        row("element in a text", "<s>\n" + record + "<codingStandard><x><y/></x></codingStandard>" + record + "</s>", 1,
            3);
        row("too deep", "<s><projectCreator>" + QByteArray("<inputData>").repeated(100000), 1, 1);
    }

    void stopsAtErrors()
    {
        QFETCH(const QByteArray, document);
        KOVRASettingsFile settings;
        settings.readDocument(document, {});
        QTEST(settings.projectCreators.size(), "types");
        QTEST(int(settings.lastError.line), "line");
        QVERIFY(!settings.lastError.reason.isEmpty());
    }

    void convertsAndLaunchesTheWorkedExample()
    {
        KOVRASettingsFile settings;
        settings.readDocument(guideBlock(u"xml worked-example"_s).toUtf8(), {.readPage = readLauncherPage});
        QCOMPARE(settings.lastError.reason, QString());
        ProjectCreatorData& creator = *settings.projectCreators.at(0);
        QCOMPARE(creator.inputData.at(1)->key, u"OutputfolderIN_OUTPUTMyfilelist"_s);
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
        QCOMPARE(conversionArguments(state),
                 QDir::toNativeSeparators(guideBlock(u"text worked-example-arguments"_s)).split(u'\n'));

        const PageData& page = *settings.applicationPages.at(0);
        RunAppData& show = *page.applications.at(0);
        RunAppData& count = *page.applications.at(1);
        QCOMPARE((QStringList{show.name, show.cExe, show.cppExe, show.rightImage}),
                 (QStringList{u"Show the\nproject file"_s, u"cat"_s, u"cat"_s, u":right_arrow.xpm"_s}));
        QCOMPARE(show.displayMode, int(TextDisplay));
        QCOMPARE(count.exeargs, (QStringList{u"-l"_s, u"%PF"_s}));
        QVERIFY(count.startsDisabled);
        QVERIFY(!show.startsDisabled);
        QCOMPARE(page.conditions.value(u"seen"_s),
                 (QMap<RunAppData*, QString>{{&show, u"start"_s}, {&count, u"enable"_s}}));
    }

    // What the schema accepts at its widest, the reader takes to the last record, and none of it is lost.
    void readsWhatTheSchemaAccepts()
    {
        KOVRASettingsFile settings;
        settings.readDocument(forThisSystem(sourceFile(u"tests/definitions/schema/accepted-everything.xml"_s).toUtf8()),
                              {.readPage = readLauncherPage});
        QCOMPARE(settings.lastError.reason, QString());
        QCOMPARE(described(settings.crossModuleAnalyses), u"[exe=cma args=%L][exe=cma]"_s);
        QCOMPARE(described(settings.complianceModules), u"[name=n forC=false place=l][name=n place=l c=c a=a]"_s);
        QCOMPARE(described(settings.codingStandards), u"[name=s][name=All forC=false c=c a=a m=m]"_s);
        QCOMPARE(described(settings.reportsPages), u"[attribute=r]"_s);
        QCOMPARE(described(settings.applicationPages), u"[]"
                                                       "[attribute=t title=t subtitle=s help=h.htm columns=12 "
                                                       "width=1 height=1 across=0 down=0 launchers=2 conditions=3]"_s);
        QCOMPARE(described(settings.projectCreators),
                 u"[name=On Linux exe=b]"
                 "[name=Two words forC=true forCpp=true "
                 "exe=/usr/local/my tools/conv args=--list,LIST cc=C:\\Program Files\\gcc.p_c "
                 "hasM=true hasA=true hasC=true]"_s);
        QCOMPARE(described(settings.projectCreators[1]->inputData),
                 u"[name=Group kind=group key=GroupPIX sep= columns=5 prefix=-a b arg=%P%I%%X forCpp=true "
                 u"fields=[name=Only here key=Onlyhere needed=true exists=true fields=[name=in key=in]]]"
                 "[name=File kind=file key=FileLIST sep= arg=LIST]"
                 "[name=Folder kind=dir key=FolderC sep= columns=0 arg=%C% forC=true]"
                 "[name=Text key=TextIN_P help=\n        Over two lines & more  needed=true ext=*.c *.h sep= columns=0 "
                 "arg=%IN_P c= c  cpp=50%]"
                 "[name=No placeholder kind=radio key=Noplaceholder sep= columns=0]"_s);
        const RunAppData& launcher = *settings.applicationPages[1]->applications.at(1);
        QCOMPARE((QStringList{launcher.cExe, launcher.cppExe}), (QStringList{u"x"_s, u"y"_s}));
        QCOMPARE((QStringList{launcher.aboveImage, launcher.belowImage, launcher.leftImage, launcher.rightImage}),
                 (QStringList{u":up_longarrow.xpm"_s, u":down_doublearrow.xpm"_s, u":left_cornerarrowupaway.xpm"_s,
                              u":right_longdoublearrow.xpm"_s}));
        QCOMPARE(launcher.dependency, (QStringList{u"one"_s, u"two words"_s}));
        QCOMPARE(launcher.exeargs, (QStringList{u"%P+"_s, u"-x"_s}));
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

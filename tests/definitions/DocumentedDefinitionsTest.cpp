// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/BatchInputs.h"
#include "definitions/KOVRASettingsFile.h"
#include "definitions/Placeholders.h"
#include "Installation.h"
#include "process/ArgumentSubstitution.h"
#include "process/RunAppData.h"
#include "TestMain.h"
#include "wizard/WizardState.h"

#include <QDir>
#include <QFile>
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

/// What docs/settings-xml.md and docs/settings.xsd say about definitions files has to be what the reader does.
class DocumentedDefinitionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        suite = std::make_unique<Installation>();
        suite->start();
        settings = std::make_unique<KOVRASettingsFile>();
    }

    void cleanup()
    {
        settings.reset();
        suite.reset();
    }

    void convertsTheWorkedExample()
    {
        settings->readDocument(guideBlock(u"xml worked-example"_s).toUtf8(), {});
        QCOMPARE(settings->lastError.reason, QString());
        QCOMPARE(settings->projectCreators.size(), size_t(1));
        ProjectCreatorData& creator = *settings->projectCreators.front();
        QVERIFY(creator.orvcProject && creator.orvcppProject);
        QCOMPARE(creator.exe, u"listprj"_s);
        QCOMPARE(creator.inputData.at(1)->key, u"OutputfolderIN_OUTPUTMyfilelist"_s);
        QVERIFY(creator.inputData.at(0)->fileMustExist && creator.inputData.at(1)->mustBeSet);

        BatchInputs inputs(creator.inputData, true);
        QCOMPARE(inputs.set(u"File list=files.txt"_s) + inputs.set(u"Order/Sorted=1"_s), QString());
        for (const auto& input : creator.inputData) {
            InputValues::value(*input, inputs.source(), true);
        }
        WizardState state;
        state.projectCreator = &creator;
        state.fileDir = u"/home/me/first file"_s;
        state.fileName = u"demo"_s;
        state.isORVC = true;
        const QStringList documented = guideBlock(u"text worked-example-arguments"_s).split(u'\n');
        QCOMPARE(conversionArguments(state), documented);
    }

    void launchesTheWorkedExample()
    {
        settings->readDocument(guideBlock(u"xml worked-example"_s).toUtf8(), {});
        QCOMPARE(settings->applicationPages.size(), size_t(1));
        const PageData& page = *settings->applicationPages.front();
        QCOMPARE(page.columns, 2);
        QCOMPARE(page.applications.size(), size_t(2));
        RunAppData& show = *page.applications[0];
        RunAppData& count = *page.applications[1];
        QCOMPARE(show.name, u"Show the\nproject file"_s);
        QCOMPARE(show.cExe + show.cppExe, u"catcat"_s);
        QCOMPARE(show.displayMode, RunAppData::TextDisplay);
        QVERIFY(QFile::exists(show.rightImage));
        QCOMPARE(count.exeargs, (QStringList{u"-l"_s, u"%PF"_s}));
        QVERIFY(count.startsDisabled && !show.startsDisabled);
        QCOMPARE(page.conditions.value(u"seen"_s),
                 (QMap<RunAppData*, QString>{{&show, u"start"_s}, {&count, u"enable"_s}}));
    }

    // What the schema accepts at its widest, the reader takes to the last record, and none of it is lost.
    void readsWhatTheSchemaAccepts()
    {
        settings->readDocument(sourceFile(u"tests/definitions/schema/accepted-everything.xml"_s).toUtf8(), {});
        QCOMPARE(settings->lastError.reason, QString());
        QCOMPARE(settings->projectCreators.size(), size_t(2));
        const ProjectCreatorData& creator = *settings->projectCreators[1];
        QVERIFY(creator.orvcProject && creator.orvcppProject && creator.hasMessagePersonality);
        QCOMPARE(creator.inputData.size(), size_t(5));
        QCOMPARE(creator.inputData[0]->children.at(0)->displayName, u"Only here"_s);
        QVERIFY(creator.inputData[0]->cppOnly && creator.inputData[2]->cOnly);
        QVERIFY(creator.inputData[3]->mustBeSet);
        QCOMPARE(creator.inputData[4]->inputType, InputType::Radio);
        QCOMPARE(settings->crossModuleAnalyses.size(), size_t(2));
        QCOMPARE(settings->complianceModules.size(), size_t(2));
        QVERIFY(!settings->complianceModules[0]->isC && settings->complianceModules[1]->isC);
        QCOMPARE(settings->codingStandards.size(), size_t(2));
        QCOMPARE(settings->reportsPages.size(), size_t(1));
        const PageData& page = *settings->applicationPages.at(1);
        QCOMPARE(page.columns, 12);
        const RunAppData& launcher = *page.applications.at(1);
        QCOMPARE(launcher.cExe + launcher.cppExe, u"xy"_s);
        QCOMPARE(launcher.dependency, (QStringList{u"one"_s, u"two words"_s}));
        QCOMPARE(launcher.exeargs, (QStringList{u"%P+"_s, u"-x"_s}));
        QCOMPARE(page.conditions.size(), 3);
        for (const QString& arrow :
             {launcher.aboveImage, launcher.belowImage, launcher.leftImage, launcher.rightImage}) {
            QVERIFY2(QFile::exists(arrow), qPrintable(arrow));
        }
    }

    // Every kind of arrow that the schema names has its picture.
    void hasEveryArrow()
    {
        const QString schema = sourceFile(u"docs/settings.xsd"_s);
        int pictures = 0;
        for (const auto& [type, directions] :
             {std::pair{u"StraightArrow"_s, QStringList{u"up"_s, u"down"_s, u"left"_s, u"right"_s}},
              std::pair{u"CornerArrow"_s, QStringList{u"left"_s, u"right"_s}}}) {
            const QString kinds =
                schema.section(u"<xs:simpleType name=\"%1\">"_s.arg(type), 1, 1).section(u"</xs:simpleType>"_s, 0, 0);
            for (qsizetype i = 1; i <= kinds.count(u"enumeration value="_s); ++i) {
                const QString kind = kinds.section(u"enumeration value=\""_s, i, i).section(u'"', 0, 0);
                for (const QString& direction : directions) {
                    const QString picture = u":%1_%2.xpm"_s.arg(direction, kind);
                    QVERIFY2(QFile::exists(picture), qPrintable(picture));
                    ++pictures;
                }
            }
        }
        QCOMPARE(pictures, QDir(u":/"_s).entryList({u"*arrow*.xpm"_s}).size());
    }

private:
    std::unique_ptr<Installation> suite;
    std::unique_ptr<KOVRASettingsFile> settings;
};

KOVRA_TEST(DocumentedDefinitionsTest)
#include "DocumentedDefinitionsTest.moc"

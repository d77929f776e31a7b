// SPDX-License-Identifier: MIT
#include "app/BatchInputs.h"
#include "definitions/KOVRASettingsFile.h"
#include "definitions/Placeholders.h"
#include "TestMain.h"

#include <QTest>

using namespace Qt::StringLiterals;

class BatchInputsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheFieldThatIsMeant_data()
    {
        QTest::addColumn<QStringList>("given");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char* name, const QStringList& given, const char* values, const char* problem = "") {
            QTest::newRow(name) << given << QString::fromLatin1(values) << QString::fromLatin1(problem);
        };
        const char* presets = "both|c||||-2|";
        row("presets", {}, presets);
        row("of the same name, for each analyser one", {u"Only=x"_s}, "both|x||||-2|");
        row("a path before a name", {u"Name=x"_s}, "both|c||x||-2|");
        row("of a group", {u"Group/Name=x"_s}, "both|c||||-2|x");
        row("an equals sign in the name", {u"A=B pairs=C=D"_s}, "both|c|||C=D|-2|");
        row("an equals sign in the value", {u"Both=A=B"_s}, "A=B|c||||-2|");
        row("one of a choice", {u"One=yes"_s}, "both|c||||-1|");
        row("none of a choice", {u"Two=0"_s}, presets, "one of a choice");
        row("of the other analyser", {u"Hidden=1"_s}, presets, "for the other analyser");
        row("unknown", {u"what=1=2"_s}, presets, "no input \"what\"");
        row("twice", {u"Twin=1"_s}, presets, "several inputs");
    }

    void findsTheFieldThatIsMeant()
    {
        QFETCH(const QStringList, given);
        QFETCH(const QString, values);
        QFETCH(const QString, problem);
        KOVRASettingsFile settings;
        settings.readDocument(R"(<s><projectCreator>
            <inputData><displayName>Both</displayName><defaultValue>both</defaultValue></inputData>
            <inputData><displayName>Only</displayName><inputType TYPE="C_ONLY">EDIT</inputType>
              <defaultValue>c</defaultValue></inputData>
            <inputData><displayName>Only</displayName><inputType TYPE="CPP_ONLY">EDIT</inputType></inputData>
            <inputData><displayName>Name</displayName></inputData>
            <inputData><displayName>A=B pairs</displayName></inputData>
            <inputData><displayName>Group</displayName><inputType SEP="+">GROUP</inputType>
              <inputData><displayName>One</displayName><inputType OUT_STR="-1">RADIO</inputType>
                <defaultValue>1</defaultValue></inputData>
              <inputData><displayName>Two</displayName><inputType OUT_STR="-2">RADIO</inputType>
                <defaultValue>1</defaultValue></inputData></inputData>
            <inputData><displayName>Group</displayName><inputType>GROUP</inputType>
              <inputData><displayName>Name</displayName></inputData>
              <inputData><displayName>Twin</displayName></inputData>
              <inputData><displayName>Twin</displayName></inputData>
              <inputData><displayName>Hidden</displayName><inputType TYPE="CPP_ONLY">CHECK</inputType></inputData>
            </inputData></projectCreator></s>)",
                              {});
        const ArgumentDefinitions& definitions = settings.projectCreators.at(0)->inputData;
        BatchInputs inputs(definitions, true);
        QString problems;
        for (const QString& input : given) {
            problems += inputs.set(input);
        }
        QVERIFY2(problem.isEmpty() ? problems.isEmpty() : problems.contains(problem), qPrintable(problems));
        QStringList result;
        for (const auto& definition : definitions) {
            result += InputValues::value(*definition, inputs.source(), false);
        }
        QCOMPARE(result.join(u'|'), values);
    }
};

KOVRA_TEST(BatchInputsTest)
#include "BatchInputsTest.moc"

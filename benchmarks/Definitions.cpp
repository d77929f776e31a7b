// SPDX-License-Identifier: MIT
// Reading a definitions file of 10 MB, against one bare pass over it.
#include "definitions/KOVRASettingsFile.h"
#include "definitions/Placeholders.h"
#include "Ratio.h"

#include <QXmlStreamReader>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const QByteArray creator = R"(
  <projectCreator>
    <name>From a build description</name>
    <exe>%ORVC%/bin/convert</exe>
    <exeargs>--in %IN --out %PF --name %J %CP+ %AP+ %MP+</exeargs>
    <orvcProject>1</orvcProject>
    <compilerPersonality TYPE="C">%ORVC%/personalities/gcc.p_c</compilerPersonality>
    <inputData><displayName>Build file</displayName><inputType>FILE</inputType><ext>*.json</ext>
      <hoverHelp>The file that describes the build.</hoverHelp><mustBeSet>FILE_MUST_EXIST</mustBeSet>
      <argDef PRE="--in">%IN</argDef><defaultValue>%I%/build.json</defaultValue></inputData>
    <inputData><displayName>Options</displayName><inputType SEP="," COLUMNS="2">GROUP</inputType>
      <inputData><displayName>One</displayName><inputType OUT_STR="-1">CHECK</inputType></inputData>
      <inputData><displayName>Two</displayName><inputType OUT_STR="-2">CHECK</inputType></inputData></inputData>
  </projectCreator>)";
    const int size = Ratio::sizeFrom(argc, argv, 10'000'000);
    const QByteArray document = "<settings>" + creator.repeated(size / creator.size()) + "</settings>";
    const Places places{u"/suite"_s, u"/orvc"_s, u"/orvcpp"_s};
    bool isGood = true;
    // The program keeps its records until it ends, so freeing them is not part of reading.
    std::vector<std::unique_ptr<KOVRASettingsFile>> kept;
    const auto ours = [&] {
        KOVRASettingsFile& settings = *kept.emplace_back(std::make_unique<KOVRASettingsFile>());
        settings.readDocument(document, {.places = places});
        isGood = isGood && !settings.projectCreators.empty();
    };
    const auto bare = [&] {
        QXmlStreamReader xml(document);
        while (!xml.atEnd()) {
            xml.readNext();
        }
        isGood = isGood && !xml.hasError();
    };
    const long bytes = Ratio::bytesOf(ours);
    const QByteArray name = "reading a definitions file of " + QByteArray::number(size) + " bytes";
    const Ratio::Outcome outcome = Ratio::measure(name.constData(), 1.25, ours, bare, 15);
    Ratio::reportCost(size, outcome, bytes);
    return isGood ? outcome.missed : 1;
}

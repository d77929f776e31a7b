// SPDX-License-Identifier: MIT
#include "definitions/InputDataReader.h"
#include "definitions/DefinitionRecords.h"
#include "definitions/DefinitionsXml.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(DefinitionsReader)
};

constexpr int maximumDepth = 100;

constexpr std::array inputTypes = {
    std::pair{"FILE"_L1, InputType::File},   std::pair{"DIR"_L1, InputType::Dir},
    std::pair{"GROUP"_L1, InputType::Group}, std::pair{"CHECK"_L1, InputType::Check},
    std::pair{"RADIO"_L1, InputType::Radio}, std::pair{"EDIT"_L1, InputType::Edit},
};

void readInputType(DefinitionsReader& xml, ArgumentDefinition& definition)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    definition.separator = attributes.value("SEP"_L1).toString();
    definition.columns = attributes.value("COLUMNS"_L1).toInt();
    definition.outputString = attributes.value("OUT_STR"_L1).toString();
    const QString analyser = xml.choice("TYPE"_L1, {"C_ONLY"_L1, "CPP_ONLY"_L1});
    definition.cOnly = analyser == "C_ONLY"_L1;
    definition.cppOnly = analyser == "CPP_ONLY"_L1;
    const QString text = xml.readElementText();
    const auto known = std::ranges::find_if(inputTypes, [&](const auto& entry) { return text == entry.first; });
    if (known != inputTypes.end()) {
        definition.inputType = known->second;
    } else {
        xml.remark(Text::tr("<inputType> \"%1\" is not known and counts as absent").arg(text));
    }
}

void readDefault(DefinitionsReader& xml, ArgumentDefinition& definition, const TextExpander& expand)
{
    const QString analyser = xml.choice("TYPE"_L1, {"C"_L1, "CPP"_L1});
    const QString text = expand(xml.readElementText());
    if (analyser != "CPP"_L1) {
        definition.cDefaultValue = text;
    }
    if (analyser != "C"_L1) {
        definition.cppDefaultValue = text;
    }
}

void readMustBeSet(DefinitionsReader& xml, ArgumentDefinition& definition)
{
    const QString text = xml.readElementText();
    if (text == "FILE_MUST_EXIST"_L1) {
        definition.mustBeSet = true;
        definition.fileMustExist = true;
        return;
    }
    bool isNumber = false;
    definition.mustBeSet |= text.toInt(&isNumber) != 0;
    if (!isNumber) {
        xml.remark(Text::tr("<mustBeSet> wants FILE_MUST_EXIST, 1 or 0; \"%1\" counts as 0").arg(text));
    }
}

bool isPlain(QStringView text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.unicode() <= 127; });
}

QString valueKey(const ArgumentDefinition& definition, const ProjectCreatorData& creator)
{
    const std::array<QStringView, 3> parts{definition.displayName, definition.argument, creator.name};
    if (!std::ranges::all_of(parts, isPlain)) {
        static const QRegularExpression nonWord(u"\\W+"_s, QRegularExpression::UseUnicodePropertiesOption);
        return QString(definition.displayName + definition.argument + creator.name).remove(nonWord);
    }
    // The same for plain names, which a large file has thousands of.
    QString key(parts[0].size() + parts[1].size() + parts[2].size(), Qt::Uninitialized);
    QChar* end = key.data();
    for (const QStringView part : parts) {
        end = std::ranges::copy_if(part, end, [](QChar character) {
                  return character.isLetterOrNumber() || character == u'_';
              }).out;
    }
    key.truncate(end - key.constData());
    return key;
}

} // namespace

void readInputData(DefinitionsReader& xml, ProjectCreatorData& creator, ArgumentDefinition* parent,
                   const TextExpander& expand, int depth)
{
    if (depth > maximumDepth) {
        xml.raiseError(u"inputData elements are nested too deeply"_s);
        return;
    }
    ArgumentDefinitions& siblings = parent ? parent->children : creator.inputData;
    ArgumentDefinition& definition = *siblings.emplace_back(std::make_unique<ArgumentDefinition>());
    const qint64 line = xml.lineNumber();
    readRecord(xml, u"inputData", [&](QStringView name) {
        if (name == "displayName"_L1) {
            definition.displayName = xml.readElementText();
        } else if (name == "inputType"_L1) {
            readInputType(xml, definition);
        } else if (name == "hoverHelp"_L1) {
            definition.hoverHelp = xml.readElementText();
        } else if (name == "defaultValue"_L1) {
            readDefault(xml, definition, expand);
        } else if (name == "mustBeSet"_L1) {
            readMustBeSet(xml, definition);
        } else if (name == "ext"_L1) {
            definition.extension = xml.readElementText();
        } else if (name == "argDef"_L1) {
            definition.prefix = xml.attributes().value("PRE"_L1).toString();
            definition.argument = xml.readElementText();
        } else if (name == "inputData"_L1) {
            readInputData(xml, creator, &definition, expand, depth + 1);
        }
    });
    definition.key = valueKey(definition, creator);
    if (definition.displayName.isEmpty()) {
        xml.remarkAt(line, Text::tr("<inputData> has no <displayName>"));
    }
}

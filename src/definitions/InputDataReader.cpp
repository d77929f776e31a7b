// SPDX-License-Identifier: MIT
#include "definitions/InputDataReader.h"
#include "definitions/DefinitionRecords.h"
#include "definitions/DefinitionsXml.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QVarLengthArray>

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

void readLooks(DefinitionsReader& xml, ArgumentDefinition& definition)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    definition.separator = xml.shared(attributes.value("SEP"_L1));
    definition.columns = attributes.value("COLUMNS"_L1).toInt();
    definition.outputString = xml.shared(attributes.value("OUT_STR"_L1));
}

void readInputType(DefinitionsReader& xml, ArgumentDefinition& definition)
{
    readLooks(xml, definition);
    const QLatin1StringView analyser = xml.choice("TYPE"_L1, {"C_ONLY"_L1, "CPP_ONLY"_L1});
    definition.cOnly = analyser == "C_ONLY"_L1;
    definition.cppOnly = analyser == "CPP_ONLY"_L1;
    const QStringView text = xml.readText();
    const auto known = std::ranges::find_if(inputTypes, [&](const auto& entry) { return text == entry.first; });
    if (known != inputTypes.end()) {
        definition.inputType = known->second;
    } else {
        xml.remark(Text::tr("<inputType> \"%1\" is not known and counts as absent").arg(text));
    }
}

void readDefault(DefinitionsReader& xml, ArgumentDefinition& definition, const TextExpander& expand)
{
    const QLatin1StringView analyser = xml.choice("TYPE"_L1, {"C"_L1, "CPP"_L1});
    const QString text = xml.readExpanded(expand);
    if (analyser != "CPP"_L1) {
        definition.cDefaultValue = text;
    }
    if (analyser != "C"_L1) {
        definition.cppDefaultValue = text;
    }
}

void readMustBeSet(DefinitionsReader& xml, ArgumentDefinition& definition)
{
    const QStringView text = xml.readText();
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

// Which characters of ASCII are those of words: most texts have no others, and a large file has thousands of them.
constexpr std::array<bool, 128> plainWordCharacters()
{
    std::array<bool, 128> words{};
    for (std::size_t character = 0; character < words.size(); ++character) {
        words[character] = (character >= u'0' && character <= u'9') || (character >= u'A' && character <= u'Z') ||
                           (character >= u'a' && character <= u'z') || character == u'_';
    }
    return words;
}

constexpr std::array<bool, 128> plainWords = plainWordCharacters();

QString valueKey(DefinitionsReader& xml, const ArgumentDefinition& definition, const ProjectCreatorData& creator)
{
    const std::array<QStringView, 3> parts{definition.displayName, definition.argument, creator.name};
    QVarLengthArray<QChar> key(parts[0].size() + parts[1].size() + parts[2].size());
    QChar* end = key.data();
    char16_t bits = 0;
    for (const QStringView part : parts) {
        for (const QChar character : part) {
            bits |= character.unicode();
            *end = character;
            end += int(plainWords[character.unicode() % plainWords.size()]);
        }
    }
    if (bits < plainWords.size()) {
        return xml.shared({key.constData(), end});
    }
    static const QRegularExpression nonWord(u"\\W+"_s, QRegularExpression::UseUnicodePropertiesOption);
    return QString(definition.displayName + definition.argument + creator.name).remove(nonWord);
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
            definition.prefix = xml.shared(xml.attributes().value("PRE"_L1));
            definition.argument = xml.readElementText();
        } else if (name == "inputData"_L1) {
            readInputData(xml, creator, &definition, expand, depth + 1);
        }
    });
    definition.key = valueKey(xml, definition, creator);
    if (definition.displayName.isEmpty()) {
        xml.remarkAt(line, Text::tr("<inputData> has no <displayName>"));
    }
}

// SPDX-License-Identifier: MIT
#include "batch/BatchListing.h"
#include "definitions/ConfigurationKind.h"
#include "definitions/DefinitionRecords.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchListing)
};

QString kind(InputType type)
{
    switch (type) {
    case InputType::File:
        return u"FILE"_s;
    case InputType::Dir:
        return u"DIR"_s;
    case InputType::Group:
        return u"GROUP"_s;
    case InputType::Check:
        return u"CHECK"_s;
    case InputType::Radio:
        return u"RADIO"_s;
    case InputType::Edit:
        break;
    }
    return u"EDIT"_s;
}

QStringList analysers(const ProjectCreatorData& creator)
{
    QStringList names;
    if (creator.orvcProject) {
        names += u"ORVC"_s;
    }
    if (creator.orvcppProject) {
        names += u"ORVCPP"_s;
    }
    return names;
}

bool isPath(const ArgumentDefinition& definition)
{
    return definition.inputType == InputType::File || definition.inputType == InputType::Dir;
}

QJsonArray toJson(const ArgumentDefinitions& definitions)
{
    QJsonArray array;
    for (const auto& definition : definitions) {
        QJsonObject object{{u"name"_s, definition->displayName},
                           {u"kind"_s, kind(definition->inputType)},
                           {u"mustBeSet"_s, definition->mustBeSet},
                           {u"mustExist"_s, definition->fileMustExist},
                           {u"default"_s, QJsonObject{{u"ORVC"_s, definition->cDefaultValue},
                                                      {u"ORVCPP"_s, definition->cppDefaultValue}}},
                           {u"placeholder"_s, definition->argument},
                           {u"help"_s, definition->hoverHelp}};
        if (isPath(*definition)) {
            object.insert(u"filter"_s, definition->extension);
        }
        if (definition->cOnly || definition->cppOnly) {
            object.insert(u"only"_s, definition->cOnly ? u"ORVC"_s : u"ORVCPP"_s);
        }
        if (definition->inputType == InputType::Group) {
            object.insert(u"inputs"_s, toJson(definition->children));
        }
        array.append(object);
    }
    return array;
}

QString oneLine(const ArgumentDefinition& definition)
{
    QStringList facts{kind(definition.inputType)};
    if (isPath(definition) && !definition.extension.isEmpty()) {
        facts += definition.extension;
    }
    if (!definition.argument.isEmpty()) {
        facts += definition.argument;
    }
    if (definition.mustBeSet) {
        facts += definition.fileMustExist ? Text::tr("must exist") : Text::tr("must be set");
    }
    if (definition.cOnly || definition.cppOnly) {
        facts += definition.cOnly ? Text::tr("Orv C only") : Text::tr("Orv C++ only");
    }
    if (!definition.cDefaultValue.isEmpty() && definition.cDefaultValue == definition.cppDefaultValue) {
        facts += Text::tr("default \"%1\"").arg(definition.cDefaultValue);
    } else {
        if (!definition.cDefaultValue.isEmpty()) {
            facts += Text::tr("default for C \"%1\"").arg(definition.cDefaultValue);
        }
        if (!definition.cppDefaultValue.isEmpty()) {
            facts += Text::tr("default for C++ \"%1\"").arg(definition.cppDefaultValue);
        }
    }
    return definition.displayName + u"  ["_s + facts.join(u", "_s) + u"]"_s;
}

QString asText(const ArgumentDefinitions& definitions, const QString& indent)
{
    QString text;
    for (const auto& definition : definitions) {
        text += indent + oneLine(*definition) + u'\n';
        if (!definition->hoverHelp.isEmpty()) {
            text += indent + u"    "_s + definition->hoverHelp.simplified() + u'\n';
        }
        text += asText(definition->children, indent + u"  "_s);
    }
    return text;
}

QString configurationName(ConfigurationKind configuration)
{
    switch (configuration) {
    case ConfigurationKind::Message:
        return Text::tr("message personality");
    case ConfigurationKind::Analyser:
        return Text::tr("analyser personality");
    case ConfigurationKind::Compiler:
        break;
    }
    return Text::tr("compiler personality");
}

// The options for the configuration files that a type asks for, listed behind its inputs.
QJsonArray configurationsToJson(const ProjectCreatorData& creator)
{
    QJsonArray array;
    for (const ConfigurationFacts& facts : configurationKinds()) {
        if (creator.*facts.asked) {
            array.append(QJsonObject{{u"name"_s, QString(facts.option)},
                                     {u"kind"_s, u"OPTION"_s},
                                     {u"filter"_s, QString(facts.pattern)},
                                     {u"default"_s, QJsonObject{{u"ORVC"_s, presetOf(creator, facts, true)},
                                                                {u"ORVCPP"_s, presetOf(creator, facts, false)}}}});
        }
    }
    return array;
}

QString configurationsAsText(const ProjectCreatorData& creator)
{
    QString text;
    for (const ConfigurationFacts& facts : configurationKinds()) {
        if (creator.*facts.asked) {
            text += u"%1 <file>: %2, %3\n"_s.arg(facts.option, configurationName(facts.kind), facts.pattern);
        }
    }
    return text;
}

QString print(const QJsonArray& array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson());
}

} // namespace

QString BatchListing::types(const std::vector<std::unique_ptr<ProjectCreatorData>>& creators, bool json)
{
    QJsonArray array;
    QString text;
    for (const auto& creator : creators) {
        array.append(QJsonObject{{u"name"_s, creator->name},
                                 {u"analysers"_s, QJsonArray::fromStringList(analysers(*creator))},
                                 {u"program"_s, creator->exe}});
        text += creator->name + u"  ["_s + analysers(*creator).join(u", "_s) + u"]\n"_s;
    }
    return json ? print(array) : text;
}

QString BatchListing::inputs(const ProjectCreatorData& creator, bool json)
{
    if (!json) {
        return asText(creator.inputData, {}) + configurationsAsText(creator);
    }
    QJsonArray array = toJson(creator.inputData);
    const QJsonArray configurations = configurationsToJson(creator);
    for (const auto configuration : configurations) {
        array.append(configuration);
    }
    return print(array);
}

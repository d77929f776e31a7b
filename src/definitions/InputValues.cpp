// SPDX-License-Identifier: MIT
#include "definitions/InputValues.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

void remember(ArgumentDefinition& definition, const FieldState& field)
{
    if (field.hasText && field.textEnabled) {
        definition.value = field.text;
    } else if (field.hasSwitch && field.switchActive) {
        definition.value = field.checked ? u"1"_s : u"0"_s;
    }
}

QString switchValue(const ArgumentDefinition& definition, const FieldState& field)
{
    if (!field.hasSwitch || !field.switchActive) {
        return {};
    }
    if (definition.outputString.isEmpty()) {
        return field.checked ? u"1"_s : u"0"_s;
    }
    return field.checked ? definition.outputString : QString();
}

QString groupValue(ArgumentDefinition& group, const FieldSource& source, bool store)
{
    QStringList parts;
    for (const auto& child : group.children) {
        const FieldState field = source(*child);
        if (child->isSwitch()) {
            if (field.hasSwitch && field.switchActive && field.checked) {
                parts += child->outputString.isEmpty() ? child->displayName : child->outputString;
            }
        } else if (const QString text = InputValues::value(*child, source, false); !text.isEmpty()) {
            parts += text;
        }
        if (store) {
            remember(*child, field);
        }
    }
    return parts.join(group.separator);
}

template <typename Visit>
void forEachField(const ArgumentDefinitions& definitions, Visit&& visit)
{
    for (const auto& definition : definitions) {
        visit(*definition);
        forEachField(definition->children, visit);
    }
}

template <typename Visit>
void forEachField(const std::vector<std::unique_ptr<ProjectCreatorData>>& creators, Visit&& visit)
{
    for (const auto& creator : creators) {
        forEachField(creator->inputData, visit);
    }
}

} // namespace

QString InputValues::value(ArgumentDefinition& definition, const FieldSource& source, bool store)
{
    const FieldState field = source(definition);
    QString result;
    if (definition.inputType == InputType::Group) {
        result = groupValue(definition, source, store);
    } else if (definition.isSwitch()) {
        result = switchValue(definition, field);
    } else if (field.textEnabled) {
        result = field.text;
    }
    if (store) {
        definition.value = result;
        remember(definition, field);
    }
    return result;
}

const ArgumentDefinition* InputValues::firstIncomplete(const ArgumentDefinitions& definitions,
                                                       const FieldSource& source)
{
    for (const auto& definition : definitions) {
        const bool namesFile = definition->inputType == InputType::File || definition->inputType == InputType::Dir;
        if (!definition->mustBeSet && !(namesFile && definition->fileMustExist)) {
            continue;
        }
        const QString text = value(*definition, source, false);
        if (definition->mustBeSet && text.simplified().isEmpty()) {
            return definition.get();
        }
        if (namesFile && definition->fileMustExist && !QFile::exists(text)) {
            return definition.get();
        }
    }
    return nullptr;
}

void InputValues::read(QSettings& settings, const std::vector<std::unique_ptr<ProjectCreatorData>>& creators)
{
    forEachField(creators, [&](ArgumentDefinition& definition) {
        if (!definition.key.isEmpty()) {
            definition.value = settings.value(definition.key).toString();
        }
    });
}

void InputValues::write(QSettings& settings, const std::vector<std::unique_ptr<ProjectCreatorData>>& creators)
{
    forEachField(creators, [&](ArgumentDefinition& definition) {
        if (!definition.key.isEmpty()) {
            settings.setValue(definition.key, definition.value);
        }
    });
}

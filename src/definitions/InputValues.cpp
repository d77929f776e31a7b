// SPDX-License-Identifier: MIT
#include "definitions/InputValues.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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

QString groupValue(const ArgumentDefinition& group, const FieldSource& source)
{
    QStringList parts;
    for (const auto& child : group.children) {
        if (child->isSwitch()) {
            const FieldState field = source(*child);
            if (field.hasSwitch && field.switchActive && field.checked) {
                parts += child->outputString.isEmpty() ? child->displayName : child->outputString;
            }
        } else if (const QString text = InputValues::value(*child, source); !text.isEmpty()) {
            parts += text;
        }
    }
    return parts.join(group.separator);
}

void rememberField(ArgumentDefinition& definition, const FieldState& field)
{
    if (field.hasText && field.textEnabled) {
        definition.value = field.text;
    } else if (field.hasSwitch && field.switchActive) {
        definition.value = field.checked ? u"1"_s : u"0"_s;
    }
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

QString InputValues::value(const ArgumentDefinition& definition, const FieldSource& source)
{
    if (definition.inputType == InputType::Group) {
        return groupValue(definition, source);
    }
    const FieldState field = source(definition);
    if (definition.isSwitch()) {
        return switchValue(definition, field);
    }
    return field.textEnabled ? field.text : QString();
}

void InputValues::remember(ArgumentDefinition& definition, const FieldSource& source)
{
    definition.value = value(definition, source);
    rememberField(definition, source(definition));
    forEachField(definition.children, [&](ArgumentDefinition& field) { rememberField(field, source(field)); });
}

const ArgumentDefinition* InputValues::firstIncomplete(const ArgumentDefinitions& definitions,
                                                       const FieldSource& source)
{
    for (const auto& definition : definitions) {
        const bool namesFile = definition->inputType == InputType::File || definition->inputType == InputType::Dir;
        if (!definition->mustBeSet && !(namesFile && definition->fileMustExist)) {
            continue;
        }
        const QString text = value(*definition, source);
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
    // What lies deeper is kept while the window lives, and never written.
    const auto writeField = [&](const ArgumentDefinition& definition) {
        if (!definition.key.isEmpty()) {
            settings.setValue(definition.key, definition.value);
        }
    };
    for (const auto& creator : creators) {
        for (const auto& definition : creator->inputData) {
            writeField(*definition);
            std::ranges::for_each(definition->children, [&](const auto& child) { writeField(*child); });
        }
    }
}

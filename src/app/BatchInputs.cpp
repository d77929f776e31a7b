// SPDX-License-Identifier: MIT
#include "app/BatchInputs.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchInputs)
};

bool isYes(const QString& value)
{
    return value == "1"_L1 || value == "true"_L1 || value == "yes"_L1 || value == "on"_L1;
}

bool isNo(const QString& value)
{
    return value == "0"_L1 || value == "false"_L1 || value == "no"_L1 || value == "off"_L1;
}

} // namespace

BatchInputs::BatchInputs(const ArgumentDefinitions& definitions, bool isC)
{
    collect(definitions, {}, isC);
}

void BatchInputs::collect(const ArgumentDefinitions& definitions, const QString& path, bool isC)
{
    for (const auto& definition : definitions) {
        const QString ownPath = path + definition->displayName;
        FieldState state;
        const QString& preset = definition->DefaultValue(isC);
        if (definition->isSwitch()) {
            state.hasSwitch = true;
            state.switchActive = !definition->isHiddenFor(isC);
            state.checked = preset.toInt() > 0;
        } else if (definition->isText()) {
            state.hasText = true;
            state.text = preset;
        }
        fields.append({definition.get(), ownPath, &definitions, state});
        collect(definition->children, ownPath + u'/', isC);
    }
}

QString BatchInputs::set(const QString& name, const QString& value)
{
    const auto isNamed = [&](const Field& field) {
        return field.definition->inputType != InputType::Group &&
               (field.path == name || field.definition->displayName == name);
    };
    const auto matches = std::ranges::count_if(fields, isNamed);
    const auto field = std::ranges::find_if(fields, isNamed);
    if (matches == 0) {
        return Text::tr("the conversion type has no input \"%1\"; -batch -list-inputs <type> lists them").arg(name);
    }
    if (matches > 1) {
        return Text::tr("several inputs are called \"%1\"; name the one you mean as group/input").arg(name);
    }
    if (field->state.hasText) {
        field->state.text = value;
        return {};
    }
    const QString answer = value.toLower();
    if (!isYes(answer) && !isNo(answer)) {
        return Text::tr("the input \"%1\" is a switch: give it 1 or 0, not \"%2\"").arg(name, value);
    }
    field->state.checked = isYes(answer);
    if (field->state.checked && field->definition->inputType == InputType::Radio) {
        choose(*field);
    }
    return {};
}

void BatchInputs::choose(Field& radio)
{
    for (Field& field : fields) {
        if (field.siblings == radio.siblings && field.definition->inputType == InputType::Radio) {
            field.state.checked = &field == &radio;
        }
    }
}

FieldSource BatchInputs::source() const
{
    QHash<const ArgumentDefinition*, FieldState> states;
    for (const Field& field : fields) {
        states.insert(field.definition, field.state);
    }
    return [states](const ArgumentDefinition& definition) { return states.value(&definition); };
}

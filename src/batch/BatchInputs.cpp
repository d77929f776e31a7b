// SPDX-License-Identifier: MIT
#include "batch/BatchInputs.h"

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

BatchInputs::BatchInputs(const ArgumentDefinitions& definitions, bool forC)
    : isC(forC)
{
    collect(definitions, {});
}

void BatchInputs::collect(const ArgumentDefinitions& definitions, const QString& path)
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
        // Of several presets the last one holds, as among buttons that exclude each other.
        if (state.checked && definition->inputType == InputType::Radio) {
            choose(fields.last());
        }
        collect(definition->children, ownPath + u'/');
    }
}

// A whole path names one field; a field's own name is enough where it is the only one of the chosen analyser.
QList<BatchInputs::Field*> BatchInputs::named(const QString& name)
{
    QList<Field*> byPath;
    QList<Field*> byName;
    QList<Field*> hidden;
    for (Field& field : fields) {
        if (field.definition->inputType == InputType::Group ||
            (field.path != name && field.definition->displayName != name)) {
            continue;
        }
        (field.definition->isHiddenFor(isC) ? hidden : field.path == name ? byPath : byName) += &field;
    }
    return !byPath.isEmpty() ? byPath : !byName.isEmpty() ? byName : hidden;
}

Result<void> BatchInputs::set(const QString& input)
{
    // A name may hold a "=" itself; the longest one that is known is meant.
    QList<Field*> found;
    qsizetype separator = input.size();
    do {
        separator = separator < 1 ? -1 : input.lastIndexOf(u'=', separator - 1);
        found = separator < 0 ? QList<Field*>() : named(input.first(separator));
    } while (separator >= 0 && found.isEmpty());
    if (found.isEmpty()) {
        return {Text::tr("the conversion type has no input \"%1\"; -batch -list-inputs <type> lists them")
                    .arg(input.section(u'=', 0, 0))};
    }
    const QString name = input.first(separator);
    Field& field = *found.first();
    if (field.definition->isHiddenFor(isC)) {
        return {Text::tr("the input \"%1\" is for the other analyser").arg(name)};
    }
    if (found.size() > 1) {
        return {Text::tr("several inputs are called \"%1\"; name the one you mean as group/input").arg(name)};
    }
    if (field.state.hasText) {
        field.state.text = input.sliced(separator + 1);
        return {};
    }
    return setSwitch(field, input.sliced(separator + 1));
}

Result<void> BatchInputs::setSwitch(Field& field, const QString& value)
{
    const QString answer = value.toLower();
    const QString& name = field.definition->displayName;
    if (!isYes(answer) && !isNo(answer)) {
        return {Text::tr("the input \"%1\" is a switch: give it 1 or 0, not \"%2\"").arg(name, value)};
    }
    if (field.definition->inputType == InputType::Radio) {
        if (isNo(answer)) {
            return {Text::tr("the input \"%1\" is one of a choice: give 1 to the one you want").arg(name)};
        }
        choose(field);
    }
    field.state.checked = isYes(answer);
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

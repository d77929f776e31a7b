// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/InputValues.h"
#include "personality/Result.h"

#include <QHash>
#include <QList>
#include <QString>

#include <utility>

/// The input fields of a conversion type filled from the command line instead of by controls.
class BatchInputs
{
public:
    BatchInputs(const ArgumentDefinitions& definitions, bool forC);

    /// Takes <name>=<value>, where the name is a field's path ("group/field") or its own name.
    Result<void> set(const QString& input);
    /// What the fields hold: the values given, else the defaults.
    FieldSource source() const;

private:
    struct Field
    {
        const ArgumentDefinition* definition;
        QString path;
        /// The list whose radio buttons exclude each other.
        const ArgumentDefinitions* siblings;
        FieldState state;
    };

    void collect(const ArgumentDefinitions& definitions, const QString& path);
    QList<Field*> named(const QString& name);
    Result<void> setSwitch(Field& field, const QString& value);
    void choose(Field& radio);

    QList<Field> fields;
    bool isC;
};

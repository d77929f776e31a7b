// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/DefinitionRecords.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QSettings;

/// What the control of a field (or whatever stands in for it) holds at the moment.
struct FieldState
{
    bool hasText = false;
    bool textEnabled = true;
    QString text = {};
    bool hasSwitch = false;
    /// A switch that is hidden or disabled contributes nothing.
    bool switchActive = true;
    bool checked = false;
};

using FieldSource = std::function<FieldState(const ArgumentDefinition&)>;

/// How the fields of a conversion type become texts, whether they are complete, and how they are remembered.
namespace InputValues {

/// The field's value; a group joins what its children contribute.
QString value(const ArgumentDefinition& definition, const FieldSource& source);

/// Keeps what the field and, of a group, its children hold in their records.
void remember(ArgumentDefinition& definition, const FieldSource& source);

/// The first top-level field that lacks what it must have; none when all is complete.
const ArgumentDefinition* firstIncomplete(const ArgumentDefinitions& definitions, const FieldSource& source);

/// Reads or writes the remembered values of every conversion type, in the store's current group.
void read(QSettings& settings, const std::vector<std::unique_ptr<ProjectCreatorData>>& creators);
void write(QSettings& settings, const std::vector<std::unique_ptr<ProjectCreatorData>>& creators);

} // namespace InputValues

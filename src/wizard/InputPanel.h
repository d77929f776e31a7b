// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/DefinitionRecords.h"

#include <functional>

class QGroupBox;
class QString;

/// Builds the controls of a conversion type's input fields.
namespace InputPanel {

/// A titled box with one control per field, columns (1 to 5) side by side; groups become boxes in it. The fields keep
/// references to their controls. changed is called whenever a value changes; isC picks the default values.
QGroupBox* BuildGroup(const ArgumentDefinitions& definitions, const QString& title, int columns, bool isC,
                      const std::function<void()>& changed);

} // namespace InputPanel

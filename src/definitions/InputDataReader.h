// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/TextExpander.h"

class DefinitionsReader;
struct ArgumentDefinition;
struct ProjectCreatorData;

/// Reads one inputData element, with the fields nested in it, into the parent field or else into the creator.
/// Fields nested more than 100 deep end the reading of the file with an error.
void readInputData(DefinitionsReader& xml, ProjectCreatorData& creator, ArgumentDefinition* parent,
                   const TextExpander& expand, int depth = 0);

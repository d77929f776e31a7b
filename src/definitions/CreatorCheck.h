// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class DefinitionsReader;
struct ProjectCreatorData;

/// Remarks on a conversion type that has been read: what it lacks, and placeholders that lead nowhere.
void checkCreator(DefinitionsReader& xml, const ProjectCreatorData& creator, qint64 argumentsLine);

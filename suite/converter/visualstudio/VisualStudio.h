// SPDX-License-Identifier: MIT
#pragma once

#include "../BuildCommand.h"
#include "BuildConfiguration.h"

class Notices;

/// The commands of a solution (.sln, .slnx) or of one project (.vcxproj, .vcxitems): those of cl, one for each source
/// that is built, with the project's name as the target. What of the wanted configuration is empty becomes the first
/// that there is; which one it is, and all that is left out, is told. Throws Failure for what can not be read at all.
BuildCommands readVisualStudio(const QString& file, const BuildConfiguration& wanted, Notices& notices);

// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectContext.h"

#include <QStringList>

struct SourceItem;

/// The command line of cl for sources of a project.
namespace ClCommand {

/// What the build tools themselves set for every source, by the project's macros.
Settings usualSettings(const ProjectContext& context);

/// The compiler and its options for a source, one word each; without the source's name. Include folders are absolute.
QStringList words(const SourceItem& item, ProjectContext& context);

} // namespace ClCommand

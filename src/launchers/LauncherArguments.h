// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"

#include <QStringList>

class PageData;

/// What a launched tool is started with.
namespace LauncherArguments {

/// The templates with their items replaced, for the page's project or else the one the suite used last; writes the
/// files that they name. The problem is what could not be written; the tool must not be started then.
Result<QStringList> prepare(const QStringList& templates, const PageData* page);

} // namespace LauncherArguments

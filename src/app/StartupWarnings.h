// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class AppRegistry;

/// What went wrong, or otherwise than the user may think, while everything was loaded: one sentence each.
namespace StartupWarnings {

/// Of the definitions file and the analysers' folders; to be told with and without a window.
QStringList all(const AppRegistry& registry);

/// Which definitions file is used, where that is neither the suite's own nor one that the user named; empty otherwise.
QString foreignDefinitions(const AppRegistry& registry);

} // namespace StartupWarnings

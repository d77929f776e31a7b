// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct ToolOptions;

/// The messages of all analysed sources as an HTML page.
QString htmlReport(const ToolOptions& options);

/// What concerns several sources at once: how often each message occurs, and sources that share a name. Also written to
/// the cross-module analysis file; throws a QString when that can not be written.
QString crossModuleReport(const ToolOptions& options);

/// One line: how many messages there are.
QString messageCount(const ToolOptions& options);

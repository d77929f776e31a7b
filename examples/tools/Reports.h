// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct ToolOptions;

/// The messages of all analysed sources as an HTML page.
QString htmlReport(const ToolOptions& options);

/// What concerns several sources at once: how often each message occurs, and sources that share a name. Also written to
/// the cross-module analysis file.
QString crossModuleReport(const ToolOptions& options);

// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/TextExpander.h"

#include <memory>

class PageData;
class QXmlStreamReader;

/// Reads a reportsPage, applicationPage or display_options element, at whose start the reader stands, up to its end.
/// Numbers that are none are 0.
std::shared_ptr<PageData> readLauncherPage(QXmlStreamReader& xml, const TextExpander& expand);

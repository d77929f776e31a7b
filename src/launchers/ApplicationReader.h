// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/TextExpander.h"

class PageData;
class QXmlStreamReader;
class RunAppData;

/// Reads one application element into a launcher, and what it does with the page's conditions; expand turns its program
/// into a path.
void readApplication(QXmlStreamReader& xml, RunAppData& launcher, PageData& page, const TextExpander& expand);

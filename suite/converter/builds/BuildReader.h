// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SourceCollector;
struct BuildInputs;

/// Asks the build system that is named and gathers the sources that it tells of, with what is left out. Says on
/// standard output what was decided. Throws Failure, before which it tells all that was left out so far.
void readBuild(const BuildInputs& inputs, const QString& projectFile, SourceCollector& collector);

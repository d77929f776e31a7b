// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What judging a project takes from its surroundings. Nothing is known of an installation that is empty here.
struct ProjectFacts
{
    QString cInstallDir = {};
    QString cppInstallDir = {};
    /// The analysers' configurations as they are now; a project analysed with another one has changed since.
    QString cConfiguration = {};
    QString cppConfiguration = {};
};

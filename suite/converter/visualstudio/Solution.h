// SPDX-License-Identifier: MIT
#pragma once

#include "BuildConfiguration.h"

#include <optional>

class Notices;
class PathFinder;
class XmlFiles;

/// What a solution file says, whichever form it has.
struct Solution
{
    /// What a project is built as when the solution is built as something; * in the pattern stands for anything.
    struct Rule
    {
        QString pattern;
        /// Empty where the rule does not say it.
        QString configuration;
        QString platform;
        std::optional<bool> isBuilt;
    };

    struct Project
    {
        QString name;
        /// As the solution writes it.
        QString path;
        /// Where the solution names it.
        qint64 line = 0;
        QList<Rule> rules;
        /// Where no rule speaks of it.
        bool isBuiltUnlessSaid = true;
    };

    QString file;
    QList<BuildConfiguration> configurations;
    QList<Project> projects;

    /// Reads a .sln or .slnx file. What of it is not understood is told and left out; throws Failure for what is no
    /// solution.
    static Solution read(const QString& file, XmlFiles& files, Notices& notices);
};

/// A project file as the solution builds it.
struct ChosenProject
{
    QString file;
    BuildConfiguration configuration;
    /// Where the solution names the project.
    qint64 line = 0;
};

/// The C and C++ projects that the solution builds in a configuration. Others, and those that are missing, are told
/// and left out.
QList<ChosenProject> chooseProjects(const Solution& solution, const BuildConfiguration& configuration,
                                    PathFinder& paths, Notices& notices);

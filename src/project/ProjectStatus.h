// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct SurveyCounts;

/// What reading a project file has told, as far as its status depends on it.
struct ProjectFindings
{
    QString file;
    /// The file holds a project.
    bool valid = false;
    bool configurationChanged = false;
    QString lastAnalysis;
};

/// How far a project is analysed, in words.
struct ProjectStatus
{
    QString text = {};
    /// There is something to analyse.
    bool usable = false;
    /// Everything that exists is analysed and current.
    bool complete = false;

    static ProjectStatus judge(const ProjectFindings& project, const SurveyCounts& counts);
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <memory>

class FileProbe;
class ProjectData;
class SourceEntry;

/// What the file system says about the files of a project.
struct SurveyCounts
{
    int total = 0;
    int existing = 0;
    /// Both output files exist, whatever their age.
    int analysed = 0;
    int upToDate = 0;
    /// The first metrics file that exists; empty when there is none.
    QString firstMetricsPath;
};

/// Which files of each project have both output files, and how many there are in it and below.
struct AnalysedFiles
{
    QHash<const ProjectData*, QList<const SourceEntry*>> own;
    QHash<const ProjectData*, int> countBelow;
};

/// Asks for every file of a project tree once, in one pass, and for nothing in a folder that does not exist.
class ProjectSurvey
{
public:
    ProjectSurvey();
    ~ProjectSurvey();

    SurveyCounts survey(const ProjectData& root);
    AnalysedFiles analysedFiles(const ProjectData& root);
    bool isUpToDate(const SourceEntry& entry);

private:
    /// When the personalities that output files must not be older than were changed.
    struct Inputs
    {
        qint64 analyser;
        qint64 compiler;
    };

    void add(const SourceEntry& entry, const Inputs& inputs, SurveyCounts& counts);
    Inputs inputsOf(const ProjectData& project);
    qint64 personalityTime(const QString& path);

    std::unique_ptr<FileProbe> probe;
    QHash<QString, qint64> personalityTimes;
    /// Of the projects seen so far: what inherits need not be looked up through all its ancestors again.
    QHash<const ProjectData*, Inputs> knownInputs;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "personality/AnalyserInference.h"
#include "personality/Result.h"
#include "project/ProjectData.h"
#include "project/ProjectFacts.h"

#include <QObject>
#include <QString>

struct OptionSources;
struct SurveyCounts;

/// An analyser project as read from its file, with the state of its analysis at that moment.
class Project : public QObject
{
    Q_OBJECT

public:
    explicit Project(QObject* parent = nullptr);
    explicit Project(const QString& fileName, const ProjectFacts& surroundings = {});

    /// Reads a project file of either dialect (or its newer backup), infers the analyser and evaluates the status. True
    /// when the file holds a project; statusText says why not.
    bool load(const QString& fileName, const ProjectFacts& surroundings = {});
    /// The arguments for a launched tool: placeholders replaced by this project's option and list files, which are
    /// written always. The problem is what could not be written; the tool must not be started then.
    Result<QStringList> expandLauncherArguments(const QStringList& arguments, const QString& analyser,
                                                const QString& extraOptionFile, const OptionSources& sources);
    /// Decides statusText, statusOk and analysisComplete afresh.
    void evaluateStatus();
    /// True unless the project was found to be C++; one judged by its suffixes counts as C.
    bool isCAnalyser() const { return projectType != ProjectType::Cpp; }
    /// The analyser's configuration is no longer the one of the last analysis.
    bool configurationChanged() const;

    ProjectData root;
    ProjectType projectType = ProjectType::Unknown;
    ProjectType declaredLanguage = ProjectType::Unknown;
    QString projectFile;
    QString lastAnalysis;
    bool valid = false;
    bool statusOk = false;
    bool analysisComplete = false;
    QString statusText;

private:
    void reset(const QString& fileName);
    void inferProjectType(const QString& metricsPath);
    void evaluateStatus(const SurveyCounts& counts);

    ProjectFacts facts;
};

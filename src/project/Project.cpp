// SPDX-License-Identifier: MIT
#include "project/Project.h"
#include "project/ArgumentExpander.h"
#include "project/ProjectReader.h"
#include "project/ProjectStatus.h"
#include "project/ProjectSurvey.h"
#include "project/TextEncoding.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

// A backup that is newer holds what the project file has lost.
QString newerOfBackup(const QString& fileName)
{
    const QString backup = fileName + u".bak"_s;
    const QFileInfo info(backup);
    return info.exists() && QFileInfo(fileName).lastModified() < info.lastModified() ? backup : fileName;
}

} // namespace

Project::Project(QObject* parent)
    : QObject(parent)
{
}

Project::Project(const QString& fileName, const ProjectFacts& surroundings)
{
    load(fileName, surroundings);
}

bool Project::load(const QString& fileName, const ProjectFacts& surroundings)
{
    facts = surroundings;
    reset(fileName);
    QFile file(newerOfBackup(fileName));
    if (!QFileInfo(fileName).isFile() || !QFileInfo(file).isFile() ||
        !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        evaluateStatus();
        return false;
    }
    ProjectReader reader(file, TextEncoding::of(file), root);
    valid = reader.read();
    declaredLanguage = reader.declaredLanguage;
    lastAnalysis = reader.lastAnalysis;
    const SurveyCounts counts = ProjectSurvey().survey(root);
    inferProjectType(counts.firstMetricsPath);
    evaluateStatus(counts);
    return valid;
}

void Project::reset(const QString& fileName)
{
    projectFile = fileName;
    valid = false;
    root.clear();
    lastAnalysis.clear();
    projectType = ProjectType::Unknown;
    declaredLanguage = ProjectType::Unknown;
}

void Project::evaluateStatus()
{
    evaluateStatus(ProjectSurvey().survey(root));
}

void Project::evaluateStatus(const SurveyCounts& counts)
{
    const ProjectStatus status =
        ProjectStatus::judge({projectFile, valid, configurationChanged(), lastAnalysis}, counts);
    statusText = status.text;
    statusOk = status.usable;
    analysisComplete = status.complete;
}

bool Project::configurationChanged() const
{
    if (lastAnalysis.isEmpty()) {
        return true;
    }
    const QString& current = isCAnalyser() ? facts.cConfiguration : facts.cppConfiguration;
    return !current.isEmpty() && current != lastAnalysis;
}

void Project::inferProjectType(const QString& metricsPath)
{
    projectType = inferAnalyser({.declaredLanguage = declaredLanguage,
                                 .compilerPersonality = root.compilerPersonality,
                                 .analyserPersonality = root.analyserPersonality,
                                 .metricsPath = metricsPath,
                                 .projectFile = projectFile,
                                 .cInstallDir = facts.cInstallDir,
                                 .cppInstallDir = facts.cppInstallDir,
                                 .eachSource = [this](const std::function<bool(const QString&)>& visit) {
                                     root.visitProjects([&](const ProjectData& project) {
                                         return std::ranges::any_of(project.files, [&](const SourceEntry& entry) {
                                             return visit(entry.sourcePath());
                                         });
                                     });
                                 }});
}

Result<QStringList> Project::expandLauncherArguments(const QStringList& arguments, const QString& analyser,
                                                     const QString& extraOptionFile, const OptionSources& sources)
{
    const Result<QString> options = root.projectOptionFile(sources);
    const Result<QString> list = root.crossModuleListFile(sources);
    Result<QStringList> result = ArgumentExpander({.analyser = analyser,
                                                   .projectFile = projectFile,
                                                   .optionFile = options.value,
                                                   .extraOptionFile = extraOptionFile,
                                                   .listFile = list.value},
                                                  sources)
                                     .expand(arguments);
    if (!options.ok() || !list.ok()) {
        result.problem = options.ok() ? list.problem : options.problem;
    }
    return result;
}

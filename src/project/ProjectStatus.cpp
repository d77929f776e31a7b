// SPDX-License-Identifier: MIT
#include "project/ProjectStatus.h"
#include "project/Project.h"
#include "project/ProjectSurvey.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// A message, and whether the project can be used.
struct Verdict
{
    QString text;
    bool usable = false;
};

Verdict judgeFile(const QString& file, bool valid, const SurveyCounts& counts)
{
    const QFileInfo info(file);
    if (file.isEmpty()) {
        return {Project::tr("Project file not selected")};
    }
    if (!info.exists()) {
        return {Project::tr("This project file does not exist")};
    }
    if (!info.isFile()) {
        return {Project::tr("This is not a valid file selection")};
    }
    if (!valid) {
        return {Project::tr("This project file is not a valid KOVRA project file")};
    }
    if (counts.total == 0) {
        return {Project::tr("This project does not contain any source files")};
    }
    if (counts.existing == 0) {
        return {Project::tr("None of the files specified in this project exist")};
    }
    return {{}, true};
}

QString judgeAnalysis(const SurveyCounts& counts, bool configurationChanged)
{
    if (counts.existing != counts.total) {
        if (counts.existing == counts.upToDate) {
            return Project::tr(
                "Some of the files specified in this project do not exist, of those that exist, analysis "
                "is complete");
        }
        return counts.analysed != 0
                   ? Project::tr("Some of the files specified in this project do not exist, of those "
                                 "that exist, some analysis output exists")
                   : Project::tr("Some of the files specified in this project do not exist, no analysis "
                                 "output exists");
    }
    if (counts.analysed == 0) {
        return Project::tr("This project has not been analysed yet");
    }
    if (counts.analysed != counts.upToDate) {
        return Project::tr("Analysis of this project is out of date");
    }
    if (counts.analysed != counts.existing) {
        return Project::tr("This project has been partially analysed");
    }
    const QString complete = Project::tr("Analysis of this project is complete");
    return configurationChanged ? complete + Project::tr(", but configuration changed since last analysis") : complete;
}

QString summarise(const SurveyCounts& counts, const QString& lastAnalysis)
{
    const auto number = [](const QString& label, int count) { return label + u' ' + QString::number(count); };
    QString text = u"\n   "_s + number(Project::tr("Files in project:"), counts.total);
    if (counts.existing != counts.total) {
        text += u"    "_s + number(Project::tr("Existing files:"), counts.existing);
    }
    if (counts.upToDate != counts.existing) {
        text += u"    "_s + number(Project::tr("Analysed files:"), counts.upToDate);
    }
    if (counts.analysed != 0) {
        text += u"\n   "_s + Project::tr("Analysed with:") + u' ' +
                (lastAnalysis.isEmpty() ? Project::tr("unknown") : lastAnalysis);
    }
    return text;
}

} // namespace

ProjectStatus ProjectStatus::judge(const ProjectFindings& project, const SurveyCounts& counts)
{
    const Verdict verdict = judgeFile(project.file, project.valid, counts);
    if (!verdict.usable) {
        return {.text = verdict.text};
    }
    return {.text = judgeAnalysis(counts, project.configurationChanged) + summarise(counts, project.lastAnalysis),
            .usable = true,
            .complete = counts.upToDate == counts.existing};
}

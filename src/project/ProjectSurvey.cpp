// SPDX-License-Identifier: MIT
#include "project/ProjectSurvey.h"
#include "project/FileProbe.h"
#include "project/ProjectData.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

ProjectSurvey::ProjectSurvey()
    : probe(std::make_unique<FileProbe>())
{
}

ProjectSurvey::~ProjectSurvey() = default;

SurveyCounts ProjectSurvey::survey(const ProjectData& root)
{
    SurveyCounts counts;
    root.visitProjects([&](const ProjectData& project) {
        const Inputs inputs = inputsOf(project);
        probe->enterFolders(project.sourceFolder(), project.outputFolder());
        for (const SourceEntry& entry : project.files) {
            add(entry, inputs, counts);
        }
        return false;
    });
    return counts;
}

AnalysedFiles ProjectSurvey::analysedFiles(const ProjectData& root)
{
    AnalysedFiles result;
    std::vector<const ProjectData*> order;
    root.visitProjects([&](const ProjectData& project) {
        order.push_back(&project);
        probe->enterFolders(project.sourceFolder(), project.outputFolder());
        QList<const SourceEntry*>& own = result.own[&project];
        for (const SourceEntry& entry : project.files) {
            if (probe->outputTime(entry.fileName(), ".met") != FileProbe::missing &&
                probe->outputTime(entry.fileName(), ".err") != FileProbe::missing) {
                own += &entry;
            }
        }
        return false;
    });
    // Children stand behind their parents, so from the end every count is complete when it is handed up.
    for (auto project = order.rbegin(); project != order.rend(); ++project) {
        const int count = result.countBelow[*project] += int(result.own[*project].size());
        if (*project != &root) {
            result.countBelow[(*project)->parent] += count;
        }
    }
    return result;
}

bool ProjectSurvey::isUpToDate(const SourceEntry& entry)
{
    SurveyCounts counts;
    const ProjectData& project = entry.owner();
    probe->enterFolders(project.sourceFolder(), project.outputFolder());
    add(entry, inputsOf(project), counts);
    return counts.upToDate == 1;
}

void ProjectSurvey::add(const SourceEntry& entry, const Inputs& inputs, SurveyCounts& counts)
{
    const qint64 source = probe->sourceTime(entry.sourcePath());
    const qint64 metrics = probe->outputTime(entry.fileName(), ".met");
    const qint64 errors = probe->outputTime(entry.fileName(), ".err");
    ++counts.total;
    counts.existing += int(source != FileProbe::missing);
    if (metrics != FileProbe::missing && counts.firstMetricsPath.isEmpty()) {
        counts.firstMetricsPath = entry.metricsPath();
    }
    if (metrics == FileProbe::missing || errors == FileProbe::missing) {
        return;
    }
    ++counts.analysed;
    const qint64 newestInput = std::max({source, inputs.analyser, inputs.compiler});
    counts.upToDate += int(source != FileProbe::missing && std::min(metrics, errors) >= newestInput);
}

ProjectSurvey::Inputs ProjectSurvey::inputsOf(const ProjectData& project)
{
    const auto parent = knownInputs.constFind(project.parent);
    const bool parentKnown = project.parent && parent != knownInputs.cend();
    const auto inherits = [&](const QString& raw) { return parentKnown && raw == "inherit string"_L1; };
    const Inputs inputs{inherits(project.analyserPersonality) ? parent->analyser
                                                              : personalityTime(project.resolvedAnalyserPersonality()),
                        inherits(project.compilerPersonality) ? parent->compiler
                                                              : personalityTime(project.resolvedCompilerPersonality())};
    knownInputs.insert(&project, inputs);
    return inputs;
}

qint64 ProjectSurvey::personalityTime(const QString& path)
{
    if (path.isEmpty()) {
        return FileProbe::missing;
    }
    const auto known = personalityTimes.constFind(path);
    if (known != personalityTimes.cend()) {
        return *known;
    }
    return *personalityTimes.insert(path, FileProbe::time(path));
}

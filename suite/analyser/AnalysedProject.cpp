// SPDX-License-Identifier: MIT
#include "AnalysedProject.h"
#include "Failure.h"

#include "project/Project.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

ProjectPart partOf(const ProjectData& data)
{
    ProjectPart part{.name = data.name,
                     .sourceFolder = data.sourceFolder(),
                     .outputFolder = data.outputFolder(),
                     .messagePersonality = data.resolvedMessagePersonality(),
                     .analyserPersonality = data.resolvedAnalyserPersonality(),
                     .compilerPersonality = data.resolvedCompilerPersonality(),
                     .sources = {}};
    for (const SourceEntry& entry : data.files) {
        part.sources += entry.sourcePath();
    }
    return part;
}

} // namespace

AnalysedProject AnalysedProject::load(const QString& fileName)
{
    const Project project(fileName);
    if (!project.statusOk) {
        throw Failure{u"%1: %2."_s.arg(fileName, project.statusText)};
    }
    AnalysedProject result{.file = QFileInfo(fileName).absoluteFilePath(),
                           .name = project.root.name,
                           .statusText = project.statusText,
                           .isC = project.isCAnalyser(),
                           .sourceFolder = project.root.sourceFolder(),
                           .outputFolder = project.root.outputFolder(),
                           .personalities = {project.root.resolvedMessagePersonality(),
                                             project.root.resolvedAnalyserPersonality(),
                                             project.root.resolvedCompilerPersonality()},
                           .lastAnalysis = project.lastAnalysis,
                           .parts = {}};
    project.root.visitProjects([&result](const ProjectData& data) {
        if (!data.files.isEmpty()) {
            result.parts.push_back(partOf(data));
        }
        return false;
    });
    return result;
}

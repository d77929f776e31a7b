// SPDX-License-Identifier: MIT
#include "project/OptionTexts.h"
#include "definitions/PathHelpers.h"
#include "project/ProjectData.h"
#include "project/ProjectSurvey.h"

#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString viaLine(const QString& path)
{
    return !path.isEmpty() && QFile::exists(path) ? u"-via "_s + QuotedNativePath(path) + u'\n' : QString();
}

} // namespace

QString OptionTexts::projectOptions(const ProjectData& project, const QStringList& standardFiles)
{
    QString text = u"-outputpath "_s + QuotedNativePath(project.outputFolder()) + u'\n';
    for (const QString& personality : {project.resolvedMessagePersonality(), project.resolvedAnalyserPersonality(),
                                       project.resolvedCompilerPersonality()}) {
        text += viaLine(personality);
    }
    for (const QString& file : standardFiles) {
        text += viaLine(file);
    }
    return text;
}

void OptionTexts::crossModuleList(const ProjectData& project, QTextStream& stream)
{
    const AnalysedFiles analysed = ProjectSurvey().analysedFiles(project);
    project.visitProjects([&](const ProjectData& part) {
        if (analysed.countBelow.value(&part) > 0) {
            stream << "-outputpath " << QuotedNativePath(part.outputFolder()) << '\n';
            for (const SourceEntry* entry : analysed.own.value(&part)) {
                stream << QuotedNativePath(entry->sourcePath()) << '\n';
            }
        }
        return false;
    });
    if (!project.parent) {
        stream << "-cmaf " << QuotedNativePath(JoinPath(project.outputFolder(), project.name)) << '\n';
    }
}

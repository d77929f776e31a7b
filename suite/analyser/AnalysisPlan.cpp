// SPDX-License-Identifier: MIT
#include "AnalysisPlan.h"
#include "Failure.h"
#include "OptionReader.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

PlannedPart planned(const ProjectPart& part, const AnalysedProject& project, const QStringList& words)
{
    OptionReader reader;
    reader.readFile(part.messagePersonality);
    // Who selects other messages does not want to wait for an analysis.
    const qsizetype ofMessages = reader.options.files.size();
    reader.readFile(part.analyserPersonality);
    reader.readFile(part.compilerPersonality);
    PlannedPart result;
    result.inputs = reader.options.files.sliced(ofMessages);
    for (const QString& personality : project.personalities) {
        if (!personality.isEmpty()) {
            reader.leaveOut(personality);
        }
    }
    reader.takeWords(words);
    reader.finish();
    result.options = reader.options;
    return result;
}

} // namespace

AnalysisPlan AnalysisPlan::ofProject(const QString& projectFile, const QStringList& words)
{
    const AnalysedProject project = AnalysedProject::load(projectFile);
    AnalysisPlan plan;
    plan.name = project.name;
    plan.projectFile = project.file;
    plan.statusText = project.statusText;
    plan.sourceFolder = project.sourceFolder;
    plan.outputFolder = project.outputFolder;
    plan.lastAnalysis = project.lastAnalysis;
    plan.isC = project.isC;
    plan.personalities = project.personalities;
    plan.personalities.removeAll(QString());
    for (const ProjectPart& part : project.parts) {
        plan.parts.push_back(planned(part, project, words));
        for (const QString& source : part.sources) {
            plan.addUnit(source, part.outputFolder, plan.parts.size() - 1);
        }
    }
    plan.findObstacles();
    return plan;
}

AnalysisPlan AnalysisPlan::ofList(const AnalysisOptions& options, bool isC)
{
    if (options.sources.isEmpty()) {
        throw Failure{u"There is nothing to analyse: name a project with -prj, or sources with -list."_s};
    }
    AnalysisPlan plan;
    plan.isC = isC;
    const QString place = options.crossModuleFile.isEmpty() ? options.sources.first().outputFolder
                                                            : QFileInfo(options.crossModuleFile).absolutePath();
    plan.outputFolder = QDir(place).absolutePath();
    plan.parts.push_back({options, {}});
    for (const AnalysisOptions::Source& source : options.sources) {
        plan.addUnit(QFileInfo(source.path).absoluteFilePath(), QDir(source.outputFolder).absolutePath(), 0);
    }
    plan.findObstacles();
    return plan;
}

QString AnalysisPlan::shownName(const QString& source) const
{
    return !sourceFolder.isEmpty() && source.startsWith(sourceFolder + u'/') ? source.sliced(sourceFolder.size() + 1)
                                                                             : source;
}

void AnalysisPlan::addUnit(const QString& source, const QString& folder, size_t part)
{
    AnalysisUnit unit;
    unit.source = source;
    unit.output = folder + u'/' + QFileInfo(source).fileName();
    const QByteArray key = QCryptographicHash::hash(unit.output.toUtf8(), QCryptographicHash::Sha1);
    unit.folder = u"units/"_s + QString::fromLatin1(key.toHex().first(16));
    unit.part = part;
    units.push_back(unit);
}

// Two sources that share their results would overwrite each other's.
void AnalysisPlan::findObstacles()
{
    QHash<QString, QString> owners;
    for (AnalysisUnit& unit : units) {
        const auto owner = owners.constFind(unit.output);
        if (owner != owners.cend()) {
            unit.obstacle = u"its results would overwrite those of %1: convert the project with a sub-project for "
                            "each folder"_s.arg(*owner);
        } else {
            owners.insert(unit.output, unit.source);
            if (!QFileInfo(unit.source).isFile()) {
                unit.obstacle = u"the file does not exist"_s;
            }
        }
    }
}

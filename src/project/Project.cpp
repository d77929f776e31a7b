// SPDX-License-Identifier: MIT
#include "project/Project.h"
#include "project/ProjectReader.h"
#include "project/ProjectSurvey.h"

#include <QFile>
#include <QFileInfo>

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

Project::Project(const QString& fileName)
{
    load(fileName);
}

bool Project::load(const QString& fileName)
{
    reset(fileName);
    QFile file(newerOfBackup(fileName));
    if (!QFileInfo(fileName).isFile() || !QFileInfo(file).isFile() ||
        !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        evaluateStatus();
        return false;
    }
    ProjectReader reader(file, root);
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

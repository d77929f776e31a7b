// SPDX-License-Identifier: MIT
#include "project/ProjectData.h"
#include "project/OptionSources.h"
#include "project/OptionTexts.h"
#include "project/ProjectSurvey.h"
#include "project/TextEncoding.h"

#include <QFile>
#include <QTextStream>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString absolute(const QString& path)
{
    return QDir::cleanPath(QDir(path).absolutePath());
}

// Most names are clean already, and cleaning 100,000 of them costs.
bool needsCleaning(QStringView path)
{
    return path.contains(u"//") || path.contains(u"/.") || path.startsWith(u'.');
}

QString joined(const QString& folder, QStringView name)
{
    QString path;
    path.reserve(folder.size() + name.size() + 1);
    path += folder;
    if (!path.endsWith(u'/')) {
        path += u'/';
    }
    path += name;
    return path;
}

QString cannotWrite(const QFile& file)
{
    return ProjectData::tr("The temporary file %1 can not be written: %2. Make room in its folder or make it writable.")
        .arg(file.fileName(), file.errorString());
}

} // namespace

SourceEntry::SourceEntry(const QString& line, const ProjectData& project)
    : ownerProject(&project)
{
    const QString text = QDir::fromNativeSeparators(line);
    source = text.isEmpty()               ? project.sourceFolder()
             : QDir::isAbsolutePath(text) ? text
                                          : joined(project.sourceFolder(), text);
    if (needsCleaning(text)) {
        source = QDir::cleanPath(source);
    }
}

QString SourceEntry::outputPath(QStringView suffix) const
{
    return joined(ownerProject->outputFolder(), fileName()) + suffix.toString();
}

bool SourceEntry::isUpToDate() const
{
    ProjectSurvey survey;
    return survey.isUpToDate(*this);
}

ProjectData::ProjectData(ProjectData* parentProject)
    : parent(parentProject)
    , absoluteSourceDir(absolute({}))
    , absoluteOutputDir(absolute({}))
{
}

ProjectData::~ProjectData()
{
    clear();
}

void ProjectData::clear()
{
    // Flattened first, so that a deep tree is not destroyed level within level.
    std::vector<std::unique_ptr<ProjectData>> pending = std::move(subProjects);
    subProjects.clear();
    while (!pending.empty()) {
        const std::unique_ptr<ProjectData> project = std::move(pending.back());
        pending.pop_back();
        for (auto& child : project->subProjects) {
            pending.push_back(std::move(child));
        }
        project->subProjects.clear();
    }
    parent = nullptr;
    files.clear();
    setSourceDir({});
    setOutputDir({});
    for (QString* text :
         {&name, &viaFilePath, &messagePersonality, &analyserPersonality, &compilerPersonality, &lastViaText}) {
        text->clear();
    }
}

void ProjectData::setSourceDir(const QString& path)
{
    sourceDir.setPath(path);
    absoluteSourceDir = absolute(path);
}

void ProjectData::setOutputDir(const QString& path)
{
    outputDir.setPath(path);
    absoluteOutputDir = absolute(path);
}

ProjectData& ProjectData::addSubProject()
{
    return *subProjects.emplace_back(std::make_unique<ProjectData>(this));
}

QString ProjectData::resolved(QString ProjectData::*personality) const
{
    const ProjectData* project = this;
    while (project && project->*personality == "inherit string"_L1) {
        project = project->parent;
    }
    return !project || project->*personality == "default string"_L1 ? QString() : project->*personality;
}

int ProjectData::fileCount() const
{
    qsizetype count = 0;
    visitProjects([&count](const ProjectData& project) {
        count += project.files.size();
        return false;
    });
    return int(count);
}

int ProjectData::existingFileCount() const
{
    return ProjectSurvey().survey(*this).existing;
}

int ProjectData::analysedFileCount() const
{
    return ProjectSurvey().survey(*this).analysed;
}

int ProjectData::upToDateFileCount() const
{
    return ProjectSurvey().survey(*this).upToDate;
}

QStringList ProjectData::allSourcePaths() const
{
    QStringList paths;
    visitProjects([&paths](const ProjectData& project) {
        for (const SourceEntry& entry : project.files) {
            paths += entry.sourcePath();
        }
        return false;
    });
    return paths;
}

QStringList ProjectData::allMetricsPaths() const
{
    QStringList paths;
    visitProjects([&paths](const ProjectData& project) {
        for (const SourceEntry& entry : project.files) {
            paths += entry.metricsPath();
        }
        return false;
    });
    return paths;
}

QString ProjectData::firstExistingMetricsPath() const
{
    return ProjectSurvey().survey(*this).firstMetricsPath;
}

QString ProjectData::cannotMakeFile()
{
    return tr("A temporary file can not be made in %1. Make room there or make it writable.")
        .arg(QDir::toNativeSeparators(QDir::tempPath()));
}

QString ProjectData::projectOptionText(const QStringList& standardFiles) const
{
    return OptionTexts::projectOptions(*this, standardFiles);
}

Result<QString> ProjectData::projectOptionFile(const OptionSources& sources)
{
    const QString text = projectOptionText(sources.standardFiles);
    if (viaFilePath.isEmpty()) {
        viaFilePath = sources.temporaryFile(u".via"_s);
        lastViaText.clear();
    }
    if (viaFilePath.isEmpty()) {
        return {{}, cannotMakeFile()};
    }
    if (text == lastViaText) {
        return {viaFilePath};
    }
    QFile file(viaFilePath);
    const QByteArray bytes = QStringEncoder(TextEncoding::written).encode(text);
    // A file that could be written only in part holds neither text.
    lastViaText.clear();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text) || file.write(bytes) != bytes.size() || !file.flush()) {
        return {viaFilePath, cannotWrite(file)};
    }
    lastViaText = text;
    return {viaFilePath};
}

void ProjectData::crossModuleListText(QTextStream& stream) const
{
    OptionTexts::crossModuleList(*this, stream);
}

Result<QString> ProjectData::crossModuleListFile(const OptionSources& sources) const
{
    QString fileName = sources.temporaryFile(u".lst"_s);
    QFile file(fileName);
    if (fileName.isEmpty()) {
        return {{}, cannotMakeFile()};
    }
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return {fileName, cannotWrite(file)};
    }
    QTextStream stream(&file);
    stream.setEncoding(TextEncoding::written);
    crossModuleListText(stream);
    stream.flush();
    const bool isComplete = file.flush() && file.error() == QFile::NoError;
    return {fileName, isComplete ? QString() : cannotWrite(file)};
}

// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"

#include <QDir>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class ProjectData;
class QTextStream;
struct OptionSources;

/// A source file of a project and the names of the files that the analyser writes for it. Sources with the same name in
/// different folders share their output files when their projects share the output folder.
class SourceEntry
{
public:
    /// line is relative to the owner's source folder or absolute.
    SourceEntry(const QString& line, const ProjectData& project);

    const QString& sourcePath() const { return source; }
    QString metricsPath() const { return outputPath(u".met"); }
    QString errorPath() const { return outputPath(u".err"); }
    QString preprocessedPath() const { return outputPath(u".i"); }
    /// The file name with its extension.
    QStringView fileName() const { return QStringView(source).sliced(source.lastIndexOf(u'/') + 1); }
    const ProjectData& owner() const { return *ownerProject; }
    /// Source and both output files exist, and neither output is older than the source or the personalities that shape
    /// it. The message personality does not matter.
    bool isUpToDate() const;

private:
    QString outputPath(QStringView suffix) const;

    QString source;
    const ProjectData* ownerProject;
};

/// A project or sub-project: folders, personalities, sources and sub-projects in the file's order. Trees may be deep:
/// nothing here recurses.
class ProjectData : public QObject
{
    Q_OBJECT

public:
    explicit ProjectData(ProjectData* parent = nullptr);
    ~ProjectData() override;

    void clear();
    void setSourceDir(const QString& path);
    void setOutputDir(const QString& path);
    const QString& sourceFolder() const { return absoluteSourceDir; }
    const QString& outputFolder() const { return absoluteOutputDir; }
    ProjectData& addSubProject();

    /// A personality after "default string" (none) and "inherit string" (the parent's) were looked up.
    QString resolvedMessagePersonality() const { return resolved(&ProjectData::messagePersonality); }
    QString resolvedAnalyserPersonality() const { return resolved(&ProjectData::analyserPersonality); }
    QString resolvedCompilerPersonality() const { return resolved(&ProjectData::compilerPersonality); }

    // Over this project and all below it, each asking the file system afresh.
    int fileCount() const;
    int existingFileCount() const;
    int analysedFileCount() const;
    int upToDateFileCount() const;
    QStringList allSourcePaths() const;
    QStringList allMetricsPaths() const;
    QString firstExistingMetricsPath() const;

    /// The options of the root project for an analyser: output folder, personalities, the standards' option files.
    QString projectOptionText(const QStringList& standardFiles = {}) const;
    /// The temporary file with these options, written when they have changed.
    Result<QString> projectOptionFile(const OptionSources& sources);
    /// The analysed files of the tree and the cross-module analysis file.
    void crossModuleListText(QTextStream& stream) const;
    /// A new temporary file with that list; its name also where it could not be written.
    Result<QString> crossModuleListFile(const OptionSources& sources) const;

    /// Why a temporary file could not be made, and what to do.
    static QString cannotMakeFile();

    /// Calls visit for this project and all below it, each before its sub-projects, until it returns true.
    template <typename Visit>
    void visitProjects(Visit&& visit) const
    {
        std::vector<const ProjectData*> pending{this};
        while (!pending.empty()) {
            const ProjectData* current = pending.back();
            pending.pop_back();
            if (visit(*current)) {
                return;
            }
            for (auto child = current->subProjects.rbegin(); child != current->subProjects.rend(); ++child) {
                pending.push_back(child->get());
            }
        }
    }

    ProjectData* parent = nullptr;
    QString name;
    QDir sourceDir;
    QDir outputDir;
    QList<SourceEntry> files;
    std::vector<std::unique_ptr<ProjectData>> subProjects;
    /// The temporary option file, made on first use, and what was last written to it.
    QString viaFilePath;
    QString messagePersonality;
    QString analyserPersonality;
    QString compilerPersonality;
    QString lastViaText;

private:
    QString resolved(QString ProjectData::*personality) const;

    QString absoluteSourceDir;
    QString absoluteOutputDir;
};

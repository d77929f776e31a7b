// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerPersonality.h"
#include "ProjectTree.h"

#include <QHash>

struct Arguments;
class FileSet;
struct Sources;

/// The configuration files of a project: the root's options beside it, in a folder of its name one file for each
/// further set of options and each compiler.
class PersonalityFiles
{
public:
    PersonalityFiles(const Arguments& wanted, const Sources& from, const QHash<int, CompilerPersonality>& answers);

    /// Puts what the tree needs into the set. Throws Failure.
    void add(const ProjectTree& tree, FileSet& files);

    /// What the project file says about its root and its parts.
    QString rootAnalyser() const;
    QString rootCompiler(const ProjectTree& tree) const;
    QString analyserOf(const ProjectTree::Node& part) const;
    QString compilerOf(const ProjectTree::Node& part) const;

    /// The folder with everything but the project and the root's options.
    const QString& folder() const { return place; }

private:
    QString database() const;
    void addRoot(const ProjectTree& tree, FileSet& files);
    void addOptions(const ProjectTree::Node& part, const ProjectTree& tree, FileSet& files);
    void addCompiler(int compiler, FileSet& files);

    const Arguments& arguments;
    const Sources& sources;
    const QHash<int, CompilerPersonality>& compilers;
    QString place;
    QString rootFile;
    QString rootMark;
    QHash<int, QString> optionFiles;
    QHash<int, QString> compilerFiles;
};

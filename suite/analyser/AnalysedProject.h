// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The sources of one folder that are compiled alike, with the personalities that stand for how.
struct ProjectPart
{
    QString name;
    QString sourceFolder;
    QString outputFolder;
    QString messagePersonality;
    QString analyserPersonality;
    QString compilerPersonality;
    QStringList sources;
};

/// A project as the tools need it: what is read from its file, and the state of its analysis at that moment.
struct AnalysedProject
{
    /// Throws a Failure that says why the file can not be used.
    static AnalysedProject load(const QString& fileName);

    QString file;
    QString name;
    QString statusText;
    bool isC = false;
    QString sourceFolder;
    QString outputFolder;
    /// The root's own, which a launcher's option file names again.
    QStringList personalities;
    /// What the project file says it was last analysed with.
    QString lastAnalysis;
    std::vector<ProjectPart> parts;
};

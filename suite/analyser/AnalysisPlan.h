// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysedProject.h"
#include "AnalysisOptions.h"

#include <QString>
#include <QStringList>

#include <vector>

/// One source with what its results are called.
struct AnalysisUnit
{
    QString source;
    /// The results without .err and .met.
    QString output;
    /// The unit's folder below the analyser's own.
    QString folder;
    /// Its part in AnalysisPlan::parts.
    size_t part = 0;
    /// Why it is not analysed at all; empty otherwise.
    QString obstacle;
};

/// Sources that are analysed with the same options.
struct PlannedPart
{
    AnalysisOptions options;
    /// Personalities that results must not be older than.
    QStringList inputs;
};

/// What there is to analyse and to report on: a project, or the sources of a list.
struct AnalysisPlan
{
    /// Reads the project and its personalities; words are further options, such as a coding standard's. Throws a
    /// Failure.
    static AnalysisPlan ofProject(const QString& projectFile, const QStringList& words);
    static AnalysisPlan ofList(const AnalysisOptions& options, bool isC);

    /// Where everything lies that is no result: build file, logs, what cppcheck leaves.
    QString workFolder() const { return outputFolder + QStringLiteral("/.orv"); }
    /// The source as a user knows it: below the project's source folder, or the whole path.
    QString shownName(const QString& source) const;

    QString name;
    QString projectFile;
    QString statusText;
    QString sourceFolder;
    QString outputFolder;
    QString lastAnalysis;
    bool isC = false;
    /// The root's personalities, for those who read a report.
    QStringList personalities;
    std::vector<PlannedPart> parts;
    std::vector<AnalysisUnit> units;

private:
    void addUnit(const QString& source, const QString& outputFolder, size_t part);
    void findObstacles();
};

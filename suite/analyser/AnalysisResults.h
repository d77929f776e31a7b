// SPDX-License-Identifier: MIT
#pragma once

#include "Finding.h"

#include <QHash>
#include <QList>
#include <QString>

#include <vector>

struct AnalysisPlan;

/// A message with how many sources saw it: a header's is seen by each that includes it.
struct SeenFinding
{
    Finding finding;
    int sources = 0;
};

struct NotAnalysed
{
    QString source;
    QString reason;
    /// Something was wrong with the run, not with the source.
    bool isFailedRun = false;
};

/// A header that is not found, and how many sources include it.
struct UnreadHeader
{
    QString name;
    int sources = 0;
};

/// What an analysis has brought, read from its results: each message once, as far as the message personalities show it.
class AnalysisResults
{
public:
    explicit AnalysisResults(const AnalysisPlan& plan);

    int countOf(Severity severity) const;

    /// By file, line, column.
    std::vector<SeenFinding> findings;
    /// In the order of the project.
    std::vector<NotAnalysed> notAnalysed;
    /// Those that most sources include first.
    std::vector<UnreadHeader> unreadHeaders;
    /// Sources that the analyser went through to the end.
    int analysed = 0;
    /// Messages that no personality shows.
    int hidden = 0;
    QStringList modules;

private:
    void addUnit(const AnalysisPlan& plan, size_t unit);
    void addWholeProgram(const AnalysisPlan& plan);
    void add(const Finding& finding);
    void countUnreadHeaders(const AnalysisPlan& plan);
    void sort();

    QHash<Finding, size_t> known;
    /// The unit that each finding was last seen in.
    std::vector<size_t> lastUnit;
    size_t currentUnit = 0;
};

/// The messages in a result file; empty when it can not be read.
QList<Finding> readFindings(const QString& path);

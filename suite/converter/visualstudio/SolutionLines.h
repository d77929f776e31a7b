// SPDX-License-Identifier: MIT
#pragma once

#include "Solution.h"

#include <QHash>

/// Reads the solution format of lines and sections (.sln).
class SolutionLines
{
public:
    SolutionLines(const QString& solutionFile, Notices& told)
        : file(solutionFile)
        , notices(told)
    {
    }

    /// Throws Failure when the file does not begin as a solution.
    Solution read();

private:
    void readLine(const QString& line);
    void readProject(const QString& line);
    void readSection(const QString& line);
    void readRule(const QString& line);
    void checkEnd() const;

    QString file;
    Notices& notices;
    Solution solution;
    /// By the project's id in lower case.
    QHash<QString, QList<Solution::Rule>> rules;
    QStringList ids;
    QString section;
    qint64 lineNumber = 0;
    qint64 sectionLine = 0;
    qint64 projectLine = 0;
    bool hasRules = false;
};

// SPDX-License-Identifier: MIT
#include "SolutionLines.h"
#include "../Failure.h"
#include "../Notices.h"
#include "../SourceLists.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr auto folderType = "{2150e333-8fdc-42a3-9474-1a3956d46de8}"_L1;
constexpr auto configurationsSection = "SolutionConfigurationPlatforms"_L1;
constexpr auto rulesSection = "ProjectConfigurationPlatforms"_L1;

} // namespace

Solution SolutionLines::read()
{
    QFile input(file);
    openText(input, u"solution"_s);
    solution.file = file;
    bool isSolution = false;
    while (!input.atEnd()) {
        const QString line = QString::fromUtf8(input.readLine()).remove(QChar(0xFEFF)).trimmed();
        ++lineNumber;
        if (isSolution) {
            readLine(line);
        } else if (line.startsWith("Microsoft Visual Studio Solution File"_L1)) {
            isSolution = true;
        } else if (!line.isEmpty()) {
            break;
        }
    }
    if (!isSolution) {
        throw Failure{u"%1:%2: not a solution: \"Microsoft Visual Studio Solution File\" is missing."_s.arg(file).arg(
            std::max(lineNumber, qint64(1)))};
    }
    checkEnd();
    for (qsizetype i = 0; i < ids.size(); ++i) {
        solution.projects[i].rules = rules.value(ids[i]);
        solution.projects[i].isBuiltUnlessSaid = !hasRules;
    }
    return std::move(solution);
}

void SolutionLines::readLine(const QString& line)
{
    if (line.startsWith("Project("_L1)) {
        readProject(line);
    } else if (line == "EndProject"_L1) {
        projectLine = 0;
    } else if (line.startsWith("GlobalSection("_L1)) {
        section = line.section(u'(', 1).section(u')', 0, 0);
        sectionLine = lineNumber;
        hasRules = hasRules || section == rulesSection;
    } else if (line == "EndGlobalSection"_L1) {
        section.clear();
    } else if (!line.isEmpty()) {
        readSection(line);
    }
}

void SolutionLines::readProject(const QString& line)
{
    static const QRegularExpression form(
        u"^Project\\(\"([^\"]*)\"\\)\\s*=\\s*\"([^\"]*)\"\\s*,\\s*\"([^\"]*)\"\\s*,\\s*\"([^\"]*)\"$"_s);
    projectLine = lineNumber;
    const QRegularExpressionMatch match = form.match(line);
    if (!match.hasMatch()) {
        notices.leaveOut(file, lineNumber, u"a project"_s, u"the line is not understood: %1"_s.arg(line));
    } else if (match.captured(1).toLower() != folderType) {
        solution.projects += {.name = match.captured(2), .path = match.captured(3), .line = lineNumber, .rules = {}};
        ids += match.captured(4).toLower();
    }
}

void SolutionLines::readSection(const QString& line)
{
    if (section == configurationsSection) {
        const BuildConfiguration configuration = BuildConfiguration::fromText(line.section(u'=', 0, 0));
        if (configuration.configuration.isEmpty() || configuration.platform.isEmpty()) {
            notices.leaveOut(file, lineNumber, u"a configuration"_s, u"the line is not understood: %1"_s.arg(line));
        } else {
            solution.configurations += configuration;
        }
    } else if (section == rulesSection) {
        readRule(line);
    }
}

void SolutionLines::readRule(const QString& line)
{
    static const QRegularExpression form(u"^(\\{[^}]*\\})\\.(.+?)\\.(ActiveCfg|Build\\.0|Deploy\\.0)\\s*=\\s*(.*)$"_s);
    const QRegularExpressionMatch match = form.match(line);
    const BuildConfiguration configuration = BuildConfiguration::fromText(match.captured(4));
    if (!match.hasMatch() || configuration.platform.isEmpty()) {
        notices.leaveOut(file, lineNumber, u"a project's configuration"_s,
                         u"the line is not understood: %1"_s.arg(line));
        return;
    }
    Solution::Rule rule{.pattern = match.captured(2), .configuration = {}, .platform = {}, .isBuilt = {}};
    if (match.captured(3) == "ActiveCfg"_L1) {
        rule.configuration = configuration.configuration;
        rule.platform = configuration.platform;
    } else if (match.captured(3) == "Build.0"_L1) {
        rule.isBuilt = true;
    }
    rules[match.captured(1).toLower()] += rule;
}

void SolutionLines::checkEnd() const
{
    if (!section.isEmpty()) {
        notices.leaveOut(file, sectionLine, u"the rest of section %1"_s.arg(section),
                         u"it has no end; the file may be cut off"_s);
    }
    if (projectLine > 0) {
        notices.leaveOut(file, projectLine, u"what follows the project"_s, u"it has no end; the file may be cut off"_s);
    }
}

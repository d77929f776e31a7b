// SPDX-License-Identifier: MIT
#include "Solution.h"
#include "../Failure.h"
#include "../Notices.h"
#include "PathFinder.h"
#include "SolutionLines.h"
#include "XmlElement.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Reads the solution format in XML (.slnx).
class SolutionXml
{
public:
    SolutionXml(const QString& file, Notices& told)
        : notices(told)
    {
        solution.file = file;
    }

    Solution read(const XmlElement& root)
    {
        if (root.name != "Solution"_L1) {
            throw Failure{
                u"%1:%2: not a solution: it begins with <%3>."_s.arg(solution.file).arg(root.line).arg(root.name)};
        }
        readFolder(root);
        // What a solution does not name.
        if (buildTypes.isEmpty()) {
            buildTypes = {u"Debug"_s, u"Release"_s};
        }
        for (const QString& buildType : std::as_const(buildTypes)) {
            for (const QString& platform : std::as_const(platforms)) {
                solution.configurations += {buildType, platform};
            }
        }
        return std::move(solution);
    }

private:
    void readFolder(const XmlElement& folder)
    {
        for (const XmlElement& element : folder.children) {
            if (element.name == "Project"_L1) {
                readProject(element);
            } else if (element.name == "Folder"_L1) {
                readFolder(element);
            } else if (element.name == "Configurations"_L1) {
                readConfigurations(element);
            }
        }
    }

    void readConfigurations(const XmlElement& configurations)
    {
        for (const XmlElement& element : configurations.children) {
            const QString name = element.attribute(u"Name"_s);
            if (name.isEmpty()) {
                notices.leaveOut(solution.file, element.line, u"<%1>"_s.arg(element.name), u"it has no Name"_s);
            } else if (element.name == "BuildType"_L1) {
                buildTypes += name;
            } else if (element.name == "Platform"_L1) {
                platforms += name;
            }
        }
    }

    void readProject(const XmlElement& element)
    {
        const QString path = element.attribute(u"Path"_s);
        if (path.isEmpty()) {
            notices.leaveOut(solution.file, element.line, u"a project"_s, u"it has no Path"_s);
            return;
        }
        Solution::Project project{
            .name = path.section(u'/', -1).section(u'\\', -1), .path = path, .line = element.line, .rules = {}};
        for (const XmlElement& child : element.children) {
            const QString wanted = child.attribute(u"Solution"_s);
            const QString value = child.attribute(u"Project"_s);
            Solution::Rule rule{
                .pattern = wanted.isEmpty() ? u"*"_s : wanted, .configuration = {}, .platform = {}, .isBuilt = {}};
            if (child.name == "BuildType"_L1) {
                rule.configuration = value;
            } else if (child.name == "Platform"_L1) {
                rule.platform = value;
            } else if (child.name == "Build"_L1) {
                rule.isBuilt = value.compare("false"_L1, Qt::CaseInsensitive) != 0;
            }
            project.rules += rule;
        }
        solution.projects += project;
    }

    Notices& notices;
    Solution solution;
    QStringList buildTypes;
    QStringList platforms;
};

bool matches(const QString& pattern, const BuildConfiguration& configuration)
{
    const auto fits = [](const QString& part, const QString& text) {
        return part.isEmpty() || part == "*"_L1 || part.compare(text, Qt::CaseInsensitive) == 0;
    };
    const BuildConfiguration wanted = BuildConfiguration::fromText(pattern);
    return fits(wanted.configuration, configuration.configuration) && fits(wanted.platform, configuration.platform);
}

} // namespace

Solution Solution::read(const QString& file, XmlFiles& files, Notices& notices)
{
    if (file.endsWith(".slnx"_L1, Qt::CaseInsensitive)) {
        return SolutionXml(file, notices).read(files.load(file, u"solution"_s));
    }
    return SolutionLines(file, notices).read();
}

QList<ChosenProject> chooseProjects(const Solution& solution, const BuildConfiguration& configuration,
                                    PathFinder& paths, Notices& notices)
{
    QList<ChosenProject> chosen;
    for (const Solution::Project& project : solution.projects) {
        const auto leaveOut = [&](const QString& reason) {
            notices.leaveOut(solution.file, project.line, u"the project \"%1\""_s.arg(project.name), reason);
        };
        BuildConfiguration own = configuration;
        bool isBuilt = project.isBuiltUnlessSaid;
        for (const Solution::Rule& rule : project.rules) {
            if (matches(rule.pattern, configuration)) {
                own.configuration = rule.configuration.isEmpty() ? own.configuration : rule.configuration;
                own.platform = rule.platform.isEmpty() ? own.platform : rule.platform;
                isBuilt = rule.isBuilt.value_or(isBuilt);
            }
        }
        const QString file = paths.find(QFileInfo(solution.file).absolutePath(), project.path);
        const QString ending = QFileInfo(file).suffix().toLower();
        if (ending == "vcxitems"_L1) {
            // It counts in the projects that import it.
            continue;
        }
        if (ending != "vcxproj"_L1) {
            leaveOut(u"%1 is no project of C or C++ sources that can be read"_s.arg(project.path));
        } else if (!isBuilt) {
            leaveOut(u"it is not built in %1"_s.arg(configuration.text()));
        } else if (!QFileInfo(file).isFile()) {
            leaveOut(u"%1 does not exist"_s.arg(file));
        } else {
            chosen += {file, own, project.line};
        }
    }
    return chosen;
}

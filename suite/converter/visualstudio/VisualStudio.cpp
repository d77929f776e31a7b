// SPDX-License-Identifier: MIT
#include "VisualStudio.h"
#include "../Counted.h"
#include "../Failure.h"
#include "../Notices.h"
#include "ClCommand.h"
#include "ImportReader.h"
#include "ItemReader.h"
#include "PathFinder.h"
#include "Solution.h"
#include "XmlElement.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Reads the projects of one solution, or one project.
class Reader
{
public:
    explicit Reader(Notices& told)
        : notices(told)
    {
    }

    BuildCommands readSolution(const QString& file, const BuildConfiguration& wanted)
    {
        const Solution solution = Solution::read(file, files, notices);
        // A solution that lists no platforms has those of its projects.
        const bool hasList = !solution.configurations.isEmpty();
        const BuildConfiguration configuration =
            hasList ? BuildConfiguration::choose(solution.configurations, wanted, file) : wanted;
        if (hasList) {
            tell(file, configuration, solution.configurations);
        }
        solutionFile = file;
        BuildCommands commands;
        const QList<ChosenProject> projects = chooseProjects(solution, configuration, paths, notices);
        for (const ChosenProject& project : projects) {
            commands += readProject(project.file, project.configuration);
        }
        if (projects.isEmpty()) {
            throw Failure{u"%1: none of its projects is left in %2. Choose another configuration or platform."_s.arg(
                file, configuration.text())};
        }
        return commands;
    }

    BuildCommands readProject(const QString& file, const BuildConfiguration& wanted)
    {
        const QList<BuildConfiguration> all = configurationsOf(file);
        BuildConfiguration configuration = all.isEmpty() ? wanted : BuildConfiguration::choose(all, wanted, file);
        if (configuration.configuration.isEmpty()) {
            configuration.configuration = u"Debug"_s;
        }
        if (configuration.platform.isEmpty()) {
            configuration.platform = u"Win32"_s;
        }
        if (solutionFile.isEmpty()) {
            tell(file, configuration, all);
        }
        ProjectContext context{.files = files,
                               .paths = paths,
                               .notices = notices,
                               .projectFile = file,
                               .projectFolder = QFileInfo(file).absolutePath()};
        fixMacros(context, configuration);
        const QList<ProjectGroup> groups = ImportReader(context).read();
        return commandsOf(ItemReader(context, ClCommand::usualSettings(context)).read(groups), context, configuration);
    }

private:
    void tell(const QString& file, const BuildConfiguration& configuration, const QList<BuildConfiguration>& all)
    {
        QStringList others;
        for (const BuildConfiguration& other : all) {
            others += other.text();
        }
        others.removeAll(configuration.text());
        notices.say(u"%1 is read as %2"_s.arg(file, configuration.text()) +
                    (others.isEmpty() ? QString() : u"; there are also "_s + others.join(", "_L1)));
    }

    // The file declares them, so that they have to be known before the rest of it can be read.
    QList<BuildConfiguration> configurationsOf(const QString& file)
    {
        QList<BuildConfiguration> all;
        for (const XmlElement& group : files.load(file, u"project file"_s).children) {
            for (const XmlElement& item : group.children) {
                if (group.name == "ItemGroup"_L1 && item.name == "ProjectConfiguration"_L1) {
                    all += BuildConfiguration::fromText(item.attribute(u"Include"_s));
                }
            }
        }
        return all;
    }

    void fixMacros(ProjectContext& context, const BuildConfiguration& configuration) const
    {
        Properties& properties = context.properties;
        const QFileInfo project(context.projectFile);
        const QString folder = context.projectFolder;
        properties.fix(u"Configuration"_s, configuration.configuration);
        properties.fix(u"Platform"_s, configuration.platform);
        properties.fix(u"ProjectDir"_s, folder + u'/');
        properties.fix(u"ProjectPath"_s, context.projectFile);
        properties.fix(u"ProjectFileName"_s, project.fileName());
        properties.fix(u"ProjectExt"_s, u'.' + project.suffix());
        properties.fix(u"MSBuildProjectDirectory"_s, folder);
        properties.fix(u"MSBuildProjectFile"_s, project.fileName());
        properties.fix(u"MSBuildProjectFullPath"_s, context.projectFile);
        properties.fix(u"MSBuildProjectName"_s, project.completeBaseName());
        properties.fix(u"MSBuildProjectExtension"_s, u'.' + project.suffix());
        if (!solutionFile.isEmpty()) {
            const QFileInfo solution(solutionFile);
            properties.fix(u"SolutionDir"_s, solution.absolutePath() + u'/');
            properties.fix(u"SolutionPath"_s, solution.absoluteFilePath());
            properties.fix(u"SolutionName"_s, solution.completeBaseName());
            properties.fix(u"SolutionFileName"_s, solution.fileName());
            properties.fix(u"SolutionExt"_s, u'.' + solution.suffix());
        }
    }

    BuildCommands commandsOf(const QList<SourceItem>& items, ProjectContext& context,
                             const BuildConfiguration& configuration)
    {
        const QString name = UnknownMacros::removed(context.properties.text(u"ProjectName"_s));
        BuildCommands commands;
        int excluded = 0;
        for (const SourceItem& item : items) {
            if (item.text(u"excludedfrombuild"_s).compare("true"_L1, Qt::CaseInsensitive) == 0) {
                ++excluded;
                continue;
            }
            commands += {.directory = context.projectFolder,
                         .file = item.path,
                         .arguments = ClCommand::words(item, context),
                         .target = name,
                         .windows = true};
        }
        const QString others = counted(excluded, u"is"_s, u"are"_s) + u" excluded from the build"_s;
        notices.say(u"%1: %2 as %3"_s.arg(name, counted(commands.size(), u"source"_s), configuration.text()) +
                    (excluded > 0 ? u", "_s + others : QString()));
        return commands;
    }

    Notices& notices;
    XmlFiles files;
    PathFinder paths;
    QString solutionFile;
};

} // namespace

BuildCommands readVisualStudio(const QString& file, const BuildConfiguration& wanted, Notices& notices)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    const QString ending = QFileInfo(path).suffix().toLower();
    Reader reader(notices);
    if (ending == "sln"_L1 || ending == "slnx"_L1) {
        return reader.readSolution(path, wanted);
    }
    if (ending == "vcxproj"_L1 || ending == "vcxitems"_L1) {
        return reader.readProject(path, wanted);
    }
    throw Failure{
        u"%1: is neither a solution nor a project. Name a .sln, .slnx, .vcxproj or .vcxitems file."_s.arg(file)};
}

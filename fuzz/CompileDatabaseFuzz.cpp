// SPDX-License-Identifier: MIT
// A compilation database becomes a project; what is then read from the project are the files of the database.
#include "Arguments.h"
#include "CompileDatabase.h"
#include "Failure.h"
#include "Paths.h"
#include "project/Project.h"
#include "ProjectSources.h"
#include "ProjectTree.h"
#include "ProjectWriter.h"
#include "Sandbox.h"
#include "SourceCollector.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList filesOf(const ProjectTree& tree)
{
    QStringList files = tree.root.files;
    for (const ProjectTree::Node& part : tree.parts) {
        files += part.files;
    }
    return files;
}

// A path with a drive or of a network is absolute on Windows only; elsewhere a project with it is for Windows.
bool areOfThisSystem(const QStringList& files)
{
    return std::ranges::none_of(files, [](const QString& file) { return Paths::isWindows(file); });
}

// Without asking compilers: a database made of random bytes starts nothing.
void convert(const QString& database, bool forC, bool subProjects)
{
    Arguments arguments;
    arguments.compileCommands = database;
    arguments.output = Sandbox::path(u"converted/new.prj"_s);
    arguments.name = u"new"_s;
    arguments.forC = forC;
    arguments.subProjects = subProjects;
    arguments.absolutePaths = forC;
    arguments.keepMissing = true;
    arguments.compilerMacros = false;
    try {
        SourceCollector collector(arguments);
        CompileDatabase::read(database, collector);
        const Sources sources = collector.take();
        const ProjectTree tree = ProjectTree::build(sources, ProjectSources::choose(sources, arguments), arguments);
        writeProject(tree, sources, {}, arguments);
        Project project;
        Sandbox::require(project.load(arguments.output), "what was written is no project");
        Sandbox::require(project.isCAnalyser() == forC, "the project is for the other analyser");
        const QStringList files = filesOf(tree);
        Sandbox::require(project.root.fileCount() == files.size(), "the project has more or fewer files");
        Sandbox::require(!areOfThisSystem(files) || project.root.allSourcePaths() == files,
                         "the project has other files");
    } catch (const Failure& failure) {
        Sandbox::require(!failure.text.isEmpty(), "a failure without a reason");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString database = Sandbox::write(u"build/compile_commands.json"_s, Sandbox::bytes(data, size));
    Sandbox::write(u"converted/.keep"_s, {});
    convert(database, true, false);
    convert(database, false, true);
    return 0;
}

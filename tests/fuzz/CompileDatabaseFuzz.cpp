// SPDX-License-Identifier: MIT
// A compilation database becomes a project; what is then read from the project are the files of the database.
#include "Arguments.h"
#include "CompileDatabase.h"
#include "Failure.h"
#include "project/Project.h"
#include "ProjectTree.h"
#include "ProjectWriter.h"
#include "Sandbox.h"

using namespace Qt::StringLiterals;

namespace {

QStringList filesOf(const ProjectTree& tree)
{
    QStringList files = tree.root.files;
    for (const ProjectTree::Node& project : tree.subProjects) {
        files += project.files;
    }
    return files;
}

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
    try {
        const ProjectTree tree = ProjectTree::build(readCompileDatabase(database), arguments);
        writeProject(tree, arguments);
        Project project;
        Sandbox::require(project.load(arguments.output), "what was written is no project");
        Sandbox::require(project.isCAnalyser() == forC, "the project is for the other analyser");
        Sandbox::require(project.root.allSourcePaths() == filesOf(tree), "the project has other files");
    } catch (const Failure& failure) {
        Sandbox::require(!failure.text.isEmpty(), "a failure without a reason");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString database = Sandbox::write(u"build/compile_commands.json"_s, Sandbox::bytes(data, size));
    static const QString outputs = Sandbox::write(u"converted/.keep"_s, {});
    convert(database, true, false);
    convert(database, false, true);
    return 0;
}

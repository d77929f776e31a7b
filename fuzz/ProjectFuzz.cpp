// SPDX-License-Identifier: MIT
// A project file of either dialect: read, counted, judged, and told to a tool.
#include "project/OptionSources.h"
#include "project/Project.h"
#include "project/ProjectSurvey.h"
#include "Sandbox.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// What the seeds name: sources, analysed and not, and personalities of both analysers.
ProjectFacts surroundings()
{
    for (const QString& name : {u"src/a.c"_s, u"src/b.cpp"_s, u"src/new.c"_s}) {
        Sandbox::write(name, "int x;\n");
    }
    for (const QString& name : {u"out/a.c"_s, u"out/b.cpp"_s}) {
        Sandbox::write(name + u".met"_s, "<S>STBUG 1\n");
        Sandbox::write(name + u".err"_s, "");
    }
    Sandbox::write(u"c/one.p_a"_s, "-via \"other\"\n-d X\n");
    Sandbox::write(u"cpp/one.p_a"_s, "-i \"folder\"\n");
    return {.cInstallDir = Sandbox::path(u"c"_s),
            .cppInstallDir = Sandbox::path(u"cpp"_s),
            .cConfiguration = u"one"_s,
            .cppConfiguration = u"two"_s};
}

void checkCounts(const Project& project)
{
    const SurveyCounts counts = ProjectSurvey().survey(project.root);
    Sandbox::require(counts.total == project.root.fileCount(), "the survey counts other files than the project");
    Sandbox::require(counts.total == project.root.allSourcePaths().size(), "not every file has a path");
    Sandbox::require(counts.existing <= counts.total, "more files exist than there are");
    Sandbox::require(counts.upToDate <= counts.existing, "more files are up to date than exist");
    Sandbox::require(counts.upToDate <= counts.analysed, "more files are up to date than analysed");
    Sandbox::require(counts.existing == project.root.existingFileCount(), "two counts of existing files");
    Sandbox::require(counts.analysed == project.root.analysedFileCount(), "two counts of analysed files");
    Sandbox::require(counts.upToDate == project.root.upToDateFileCount(), "two counts of current files");
    Sandbox::require(counts.firstMetricsPath == project.root.firstExistingMetricsPath(), "two first metrics files");
}

void tellTool(Project& project)
{
    QString list;
    QTextStream stream(&list);
    project.root.crossModuleListText(stream);
    const QStringList arguments = {u"%Q"_s, u"%PF"_s, u"%P+"_s, u"%P"_s, u"%L+"_s, u"%L"_s, u"%R+"_s, u"%R"_s};
    const OptionSources sources{
        .temporaryFile = [](const QString& suffix) { return Sandbox::write(u"option"_s + suffix, {}); },
        .standardFiles = {Sandbox::path(u"c/one.p_a"_s)}};
    const Result<QStringList> expanded =
        project.expandLauncherArguments(arguments, u"ORVC"_s, Sandbox::path(u"cpp/one.p_a"_s), sources);
    Sandbox::require(expanded.ok(), "a tool's arguments can not be made");
    Sandbox::require(expanded.value.contains(project.projectFile), "a tool is not told of the project file");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const ProjectFacts facts = surroundings();
    const QString file = Sandbox::write(u"project.prj"_s, Sandbox::bytes(data, size));
    Project project;
    const bool loaded = project.load(file, facts);
    Sandbox::require(loaded == project.valid, "a project that was not loaded is valid");
    checkCounts(project);
    tellTool(project);

    const QString status = project.statusText;
    project.evaluateStatus();
    Sandbox::require(status == project.statusText, "asking again gives another status");
    project.load(file, facts);
    Sandbox::require(status == project.statusText, "reading again gives another status");
    return 0;
}

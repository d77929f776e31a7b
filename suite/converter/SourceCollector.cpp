// SPDX-License-Identifier: MIT
#include "SourceCollector.h"
#include "Arguments.h"
#include "CommandParser.h"
#include "Paths.h"
#include "TargetName.h"

SourceCollector::SourceCollector(const Arguments& wanted)
    : arguments(wanted)
{
    plain.fill(-1);
}

void SourceCollector::add(const BuildCommand& command)
{
    QString output;
    const int settings = settingsOf(command, &output);
    const QString target = command.target.isEmpty() ? targetOfOutput(output) : command.target;
    add(Paths::absolute(command.directory, command.file, command.windows), settings, targetNumber(target));
}

void SourceCollector::addFile(const QString& path)
{
    const bool windows = Paths::isWindows(path);
    int& settings = plain[size_t(languageOfFile(Paths::nameOf(path), windows))];
    if (settings < 0) {
        settings = settingsOf(
            {.directory = Paths::folderOf(path), .file = path, .arguments = {}, .target = {}, .windows = windows});
    }
    add(path, settings, 0);
}

int SourceCollector::settingsOf(const BuildCommand& command, QString* output)
{
    const ParsedCommand parsed = CommandParser(command).parse(arguments.defines, arguments.includeFolders);
    SourceSettings settings{.options = sources.pool.setOf(parsed.options),
                            .compiler = compilerNumber(parsed.compiler),
                            .language = parsed.language,
                            .problems = {}};
    for (const QString& problem : parsed.problems) {
        settings.problems += sources.log.number(problem);
    }
    if (output) {
        *output = parsed.output;
    }
    sources.settings += settings;
    return int(sources.settings.size()) - 1;
}

void SourceCollector::add(const QString& path, int settings, int target)
{
    sources.units += SourceUnit{path, settings, target};
    for (const int problem : std::as_const(sources.settings[settings].problems)) {
        sources.log.count(problem, path);
    }
}

int SourceCollector::targetNumber(const QString& name)
{
    if (name.isEmpty()) {
        return 0;
    }
    int& number = targets[name];
    if (number == 0) {
        sources.targets += name;
        number = int(sources.targets.size()) - 1;
    }
    return number;
}

int SourceCollector::compilerNumber(const CompilerSetup& setup)
{
    if (setup.program.isEmpty() || !arguments.compilerMacros) {
        return -1;
    }
    const auto known = compilers.constFind(setup);
    if (known != compilers.cend()) {
        return *known;
    }
    sources.compilers += setup;
    compilers.insert(setup, int(sources.compilers.size()) - 1);
    return int(sources.compilers.size()) - 1;
}

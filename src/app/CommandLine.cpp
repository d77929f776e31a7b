// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"
#include "definitions/ConfigurationKind.h"
#include "process/WizardState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <type_traits>

using namespace Qt::StringLiterals;

bool CommandLine::endsProgram(const QStringList& arguments)
{
    const QStringList options = arguments.mid(1);
    return options.contains("-ver"_L1) || options.contains("-help"_L1);
}

void CommandLine::presetAnalyser(bool isC, WizardState& state)
{
    state.cAvailable = isC;
    state.cppAvailable = !isC;
}

void CommandLine::presetProject(const QString& projectFile, WizardState& state)
{
    const QFileInfo file(projectFile);
    state.fileDir = QDir::toNativeSeparators(file.absolutePath());
    state.fileName = file.baseName();
}

std::optional<QString> CommandLine::toolsProject(const QStringList& arguments)
{
    const qsizetype option = arguments.indexOf("-tools"_L1, 1);
    return option < 0 ? std::nullopt : std::optional(arguments.value(option + 1));
}

void CommandLine::preset(const QStringList& arguments, WizardState& state)
{
    const auto& kinds = configurationKinds();
    std::array<bool, std::tuple_size_v<std::remove_cvref_t<decltype(kinds)>>> given = {};
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& option = arguments[i];
        if (option == "-c"_L1 || option == "-cpp"_L1) {
            presetAnalyser(option == "-c"_L1, state);
        }
        if (i + 1 == arguments.size()) {
            break;
        }
        const QString& value = arguments[i + 1];
        for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
            if (option == kinds[kind].option) {
                state.configuration(kinds[kind].kind) = value;
                given[kind] = given[kind] || QFile::exists(value);
            }
        }
        if (option == "-prj"_L1) {
            presetProject(value, state);
        }
    }
    state.personalitiesGiven = std::ranges::all_of(given, [](bool isGiven) { return isGiven; });
}

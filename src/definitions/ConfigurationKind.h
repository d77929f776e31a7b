// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

#include <array>

class CodingStandard;
struct ComplianceModule;
struct ProjectCreatorData;

/// The kinds of configuration file that an analyser project has.
enum class ConfigurationKind { Message, Analyser, Compiler };

/// What is known of a kind, so that the three are listed in one place only.
struct ConfigurationFacts
{
    ConfigurationKind kind;
    /// Names a file of the kind on the command line.
    QLatin1StringView option;
    /// Stands for the file in a conversion program's arguments; with a "+" behind it for an option that names it.
    QLatin1StringView placeholder;
    /// The key in the wizard's settings and the element of conversion types and coding standards.
    QLatin1StringView name;
    /// The element of compliance modules.
    QLatin1StringView moduleElement;
    /// Which files a browser shows.
    QLatin1StringView pattern;
    bool ProjectCreatorData::*asked;
    QString ProjectCreatorData::*cPreset;
    QString ProjectCreatorData::*cppPreset;
    QString ComplianceModule::*moduleFile;
    QString CodingStandard::*standardFile;
};

/// All kinds, in the order in which the user is asked for them.
const std::array<ConfigurationFacts, 3>& configurationKinds();

const ConfigurationFacts& factsOf(ConfigurationKind kind);

/// The conversion type's own file of the kind for an analyser.
const QString& presetOf(const ProjectCreatorData& creator, const ConfigurationFacts& kind, bool isC);

// SPDX-License-Identifier: MIT
#include "definitions/ConfigurationKind.h"
#include "definitions/DefinitionRecords.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const std::array<ConfigurationFacts, 3>& configurationKinds()
{
    static constexpr std::array kinds{
        ConfigurationFacts{ConfigurationKind::Message, "-mp"_L1, "%MP"_L1, "messagePersonality"_L1,
                           "messagepersonality"_L1, "*.p_s"_L1, &ProjectCreatorData::hasMessagePersonality,
                           &ProjectCreatorData::cMessagePersonality, &ProjectCreatorData::cppMessagePersonality,
                           &ComplianceModule::messagePersonality, &CodingStandard::messagePersonality},
        ConfigurationFacts{ConfigurationKind::Analyser, "-ap"_L1, "%AP"_L1, "analyserPersonality"_L1,
                           "analyserpersonality"_L1, "*.p_a"_L1, &ProjectCreatorData::hasAnalyserPersonality,
                           &ProjectCreatorData::cAnalyserPersonality, &ProjectCreatorData::cppAnalyserPersonality,
                           &ComplianceModule::analyserPersonality, &CodingStandard::analyserPersonality},
        ConfigurationFacts{ConfigurationKind::Compiler, "-cp"_L1, "%CP"_L1, "compilerPersonality"_L1,
                           "compilerpersonality"_L1, "*.p_c"_L1, &ProjectCreatorData::hasCompilerPersonality,
                           &ProjectCreatorData::cCompilerPersonality, &ProjectCreatorData::cppCompilerPersonality,
                           &ComplianceModule::compilerPersonality, &CodingStandard::compilerPersonality},
    };
    return kinds;
}

const ConfigurationFacts& factsOf(ConfigurationKind kind)
{
    return *std::ranges::find(configurationKinds(), kind, &ConfigurationFacts::kind);
}

const QString& presetOf(const ProjectCreatorData& creator, const ConfigurationFacts& kind, bool isC)
{
    return creator.*(isC ? kind.cPreset : kind.cppPreset);
}

// SPDX-License-Identifier: MIT
#include "process/WizardState.h"
#include "definitions/ConfigurationKind.h"
#include "definitions/DefinitionRecords.h"
#include "definitions/EnvironmentValue.h"
#include "definitions/PathHelpers.h"
#include "personality/ProductNames.h"

#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;

const QString& WizardState::configuration(ConfigurationKind kind) const
{
    switch (kind) {
    case ConfigurationKind::Message:
        return messagePersonality;
    case ConfigurationKind::Analyser:
        return analyserPersonality;
    case ConfigurationKind::Compiler:
        break;
    }
    return compilerPersonality;
}

QString& WizardState::configuration(ConfigurationKind kind)
{
    return const_cast<QString&>(std::as_const(*this).configuration(kind));
}

QString WizardState::ProjectFile() const
{
    return QDir::toNativeSeparators(JoinPath(fileDir, fileName + u".prj"_s));
}

namespace {

// What nobody changed follows the analyser; a field with its old preset is as good as empty.
void forgetPresets(const ArgumentDefinitions& definitions, bool wasC)
{
    for (const auto& definition : definitions) {
        forgetPresets(definition->children, wasC);
        if (definition->value == definition->DefaultValue(wasC)) {
            definition->value.clear();
        }
    }
}

} // namespace

void WizardState::SetAnalyser(bool isC)
{
    if (projectCreator && isC != isORVC) {
        forgetPresets(projectCreator->inputData, isORVC);
        for (const ConfigurationFacts& kind : configurationKinds()) {
            if (configuration(kind.kind) == presetOf(*projectCreator, kind, isORVC)) {
                configuration(kind.kind).clear();
            }
        }
    }
    isORVC = isC;
    defaultPersonalityLocation = EnvironmentValue(ProductNames::of(isC).personalitiesVariable, false);
}

std::optional<bool> WizardState::onlyAnalyser(const ProjectCreatorData* creator, const QString& cInstallDir,
                                              const QString& cppInstallDir) const
{
    // The only installed analyser wins over whatever was asked for.
    if (cInstallDir.isEmpty() != cppInstallDir.isEmpty()) {
        return cppInstallDir.isEmpty();
    }
    if (cAvailable != cppAvailable) {
        return cAvailable;
    }
    if (creator && creator->orvcProject != creator->orvcppProject) {
        return creator->orvcProject;
    }
    return {};
}

void WizardState::decideAnalyser(const QString& cInstallDir, const QString& cppInstallDir)
{
    const std::optional<bool> only = onlyAnalyser(projectCreator, cInstallDir, cppInstallDir);
    analyserFixed = only.has_value();
    if (only) {
        SetAnalyser(*only);
    }
    noAnalyserInstalled = cInstallDir.isEmpty() && cppInstallDir.isEmpty();
}

// SPDX-License-Identifier: MIT
#include "wizard/WizardState.h"
#include "app/Installations.h"
#include "app/ProductNames.h"
#include "definitions/DefinitionRecords.h"
#include "definitions/PathHelpers.h"

#include <QDir>

#include <tuple>

using namespace Qt::StringLiterals;

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
        const ProjectCreatorData& creator = *projectCreator;
        const std::tuple<QString&, const QString&> files[] = {
            {compilerPersonality, creator.CompilerPersonality(isORVC)},
            {analyserPersonality, creator.AnalyserPersonality(isORVC)},
            {messagePersonality, creator.MessagePersonality(isORVC)},
        };
        for (const auto& [file, preset] : files) {
            if (file == preset) {
                file.clear();
            }
        }
    }
    isORVC = isC;
    defaultPersonalityLocation = EnvironmentValue(ProductNames::of(isC).personalitiesVariable, false);
}

void WizardState::decideAnalyser(const QString& cInstallDir, const QString& cppInstallDir)
{
    const auto fix = [this](bool isC) {
        SetAnalyser(isC);
        analyserFixed = true;
    };
    analyserFixed = false;
    if (cAvailable != cppAvailable) {
        fix(cAvailable);
    } else if (projectCreator && projectCreator->orvcProject != projectCreator->orvcppProject) {
        fix(projectCreator->orvcProject);
    }
    noAnalyserInstalled = cInstallDir.isEmpty() && cppInstallDir.isEmpty();
    if (noAnalyserInstalled) {
        return;
    }
    // The only installed analyser wins over whatever was asked for.
    if (cInstallDir.isEmpty()) {
        fix(false);
    } else if (cppInstallDir.isEmpty()) {
        fix(true);
    }
}

// SPDX-License-Identifier: MIT
#include "wizard/WizardState.h"
#include "app/Installations.h"
#include "app/ProductNames.h"
#include "definitions/DefinitionRecords.h"
#include "definitions/PathHelpers.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString WizardState::ProjectFile() const
{
    return QDir::toNativeSeparators(JoinPath(fileDir, fileName + u".prj"_s));
}

void WizardState::SetAnalyser(bool isC)
{
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

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

enum class ConfigurationKind;
struct ProjectCreatorData;

/// What the pages collect about the project to be created. Paths are in native form.
struct WizardState
{
    /// The new project's name, without folder and extension.
    QString fileName;
    QString fileDir;
    /// The name of the chosen conversion type.
    QString conversion;
    ProjectCreatorData* projectCreator = nullptr;
    QString compilerPersonality;
    QString analyserPersonality;
    QString messagePersonality;
    /// Where the browsers for configuration files start.
    QString defaultPersonalityLocation;
    bool cAvailable = false;
    bool cppAvailable = false;
    /// The analyser is decided, so its page is skipped.
    bool analyserFixed = false;
    bool noAnalyserInstalled = false;
    bool conversionDone = false;
    /// What the user should know of a conversion that left a project file although its program failed; one line, empty
    /// when all is well.
    QString conversionWarning;
    bool isORVC = true;
    /// All three configuration files came with the command line and exist.
    bool personalitiesGiven = false;

    QString& configuration(ConfigurationKind kind);
    const QString& configuration(ConfigurationKind kind) const;
    /// The path of the project file to be created.
    QString ProjectFile() const;
    /// Chooses the analyser and the folder in which its configuration files are browsed for. Values that are still the
    /// conversion type's presets for the other analyser are forgotten.
    void SetAnalyser(bool isC);
    /// The only analyser, C or not, that what is installed, asked for and served by a conversion type leaves; none when
    /// the user has to choose. Folders as discovered.
    std::optional<bool> onlyAnalyser(const ProjectCreatorData* creator, const QString& cInstallDir,
                                     const QString& cppInstallDir) const;
    /// Decides the analyser from what is installed and what the conversion type serves; folders as discovered.
    void decideAnalyser(const QString& cInstallDir, const QString& cppInstallDir);
};

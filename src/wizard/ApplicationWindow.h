// SPDX-License-Identifier: MIT
#pragma once

#include "process/WizardState.h"
#include "wizard/OrvWizardWindow.h"

#include <QStringList>

class ActionPage;
class QSettings;

/// The project-creation wizard: holds what its pages collect, presets it from the settings and the command line, and
/// decides which page follows which.
class ApplicationWindow : public OrvWizardWindow, public WizardState
{
    Q_OBJECT

public:
    ApplicationWindow(const QString& title, const QString& helpPage, const QStringList& arguments);

    static QString AnalyserName(bool isC);
    /// The configuration file of a kind, after the conversion type's default was put in place of an empty one or of one
    /// that is written for the other analyser.
    const QString& configurationOrPreset(ConfigurationKind kind);
    const QString& GetCompilerPersonality();
    const QString& GetAnalyserPersonality();
    const QString& GetMessagePersonality();
    /// The id of the page that follows pageId.
    int NextPage(int pageId) const;
    /// Shows what the conversion program printed.
    void showConversionOutput();

public Q_SLOTS:
    void CustomButtonClicked(int which) override;
    void DoRegistrySetValues(QSettings* settings);
    void DoRegistryValues(QSettings* settings);

protected:
    bool confirmInterruption() override;

private:
    void presetFromLastProject();
    void createPages();

    ActionPage* actionPage = nullptr;
};

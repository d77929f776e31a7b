// SPDX-License-Identifier: MIT
#pragma once

#include "personality/Result.h"
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
    /// Makes the tools' page the first one, for a project that exists; before the window is shown. The problem says
    /// what is wrong with the file.
    Result<void> openTools(const QString& projectFile);
    /// The project given to openTools(), until another one is to be converted; empty otherwise.
    const QString& openedProject() const { return toolsFile; }
    /// For the page on which a type that asks for nothing ends the wizard.
    static QString noConversionText();
    /// Shows what the conversion program printed.
    void showConversionOutput();

public Q_SLOTS:
    void CustomButtonClicked(int which) override;
    void DoRegistrySetValues(QSettings* settings);
    void DoRegistryValues(QSettings* settings);

protected:
    Consent confirmInterruption() override;
    QString forgottenText() const override;

private:
    void presetFromLastProject();
    void createPages();

    ActionPage* actionPage = nullptr;
    QString toolsFile;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/AppPage.h"
#include "wizard/SelectFileWidgets.h"

class AlarmLabel;
class QLabel;
class QLineEdit;
class QuietCombo;

/// Name, folder and conversion type of the new project.
class StartPage : public AppPage
{
    Q_OBJECT

public:
    explicit StartPage(ApplicationWindow* owner);

    void initializePage() override;
    bool validatePage() override;
    bool isComplete() const override;
    QWidget* fieldToMend() const override;

private:
    static QString errorText();
    void layOut();
    void showWarnings();
    void fillTypes();
    void updateButtons();
    void updateHint();
    /// The chosen type leads to no conversion.
    bool endsHere() const;
    bool makeFolder();
    bool checkProjectFile();

    SelectFileWidgets location;
    QLineEdit* nameEdit;
    QuietCombo* typeCombo;
    AlarmLabel* errorLabel;
    /// What went wrong while everything was loaded.
    QLabel* warnings;
    /// On whose account the page was refused.
    QWidget* mistaken = nullptr;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/AppPage.h"
#include "wizard/SelectFileWidgets.h"

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

private:
    void fillTypes();
    void updateButtons();
    void updateHint();
    bool makeFolder();
    bool checkProjectFile();

    SelectFileWidgets location;
    QLineEdit* nameEdit;
    QuietCombo* typeCombo;
    QLabel* errorLabel;
    /// Says what Next is waiting for.
    QLabel* hint;
    /// What went wrong while everything was loaded.
    QLabel* warnings;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/OrvBasicWizardPage.h"

class ApplicationWindow;
class QLabel;
class QPushButton;

/// A page of this wizard: reads and stores the wizard's state, and asks the window which page comes next.
class AppPage : public OrvBasicWizardPage
{
    Q_OBJECT

public:
    AppPage(ApplicationWindow* owner, int pageId);

    int nextId() const override;
    /// Adds the link to the page's help, where there is help.
    void completeControls() override;

protected:
    /// The file name of the help page that the link opens.
    virtual QString helpPage() const;
    /// A line for what Next waits for, below what the page scrolls, so that it is always seen.
    QLabel* addHint();

    ApplicationWindow* window;

private:
    QPushButton* helpLink = nullptr;
};

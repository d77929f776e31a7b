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
    /// Adds a line for what Next waits for, below what the page scrolls, so that it is always seen.
    void addHint();
    void showHint(const QString& text);
    /// A text that takes more of the screen's width than this, which can be in a large font, is broken into lines.
    void wrapWide(QLabel& label, double share) const;

    ApplicationWindow* window;

private:
    QLabel* hint = nullptr;
    QPushButton* helpLink = nullptr;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/OrvBasicWizardPage.h"

class ApplicationWindow;

/// A page of this wizard: reads and stores the wizard's state, and asks the window which page comes next.
class AppPage : public OrvBasicWizardPage
{
    Q_OBJECT

public:
    AppPage(ApplicationWindow* owner, int pageId);

    int nextId() const override;

protected:
    ApplicationWindow* window;
};

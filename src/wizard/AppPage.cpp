// SPDX-License-Identifier: MIT
#include "wizard/AppPage.h"
#include "wizard/ApplicationWindow.h"

using namespace Qt::StringLiterals;

AppPage::AppPage(ApplicationWindow* owner, int id)
    : OrvBasicWizardPage(owner, id)
    , window(owner)
{
    setSubTitle(u" "_s);
}

int AppPage::nextId() const
{
    return window->NextPage(pageId);
}

// SPDX-License-Identifier: MIT
#pragma once

struct WizardState;

/// The ids under which the window registers its pages.
enum PageId : int {
    StartPageId = 0,
    SetProductPageId = 1,
    XmlPageId = 2,
    ConfPageId = 3,
    ActionPageId = 4,
    DisplayOptionsPageId = 5,
    NoPageId = -1
};

/// The page that follows pageId; NoPageId where the wizard can finish.
int nextPage(int pageId, const WizardState& state);

// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/AppPage.h"

class QLabel;

/// The follow-up tools of a successful conversion.
class DisplayOptionsPage : public AppPage
{
    Q_OBJECT

public:
    explicit DisplayOptionsPage(ApplicationWindow* window);

    void initializePage() override;

private:
    QLabel* created;
};

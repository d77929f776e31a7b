// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/AppPage.h"

class QLabel;

/// The configuration files of the new project.
class ConfPage : public AppPage
{
    Q_OBJECT

public:
    explicit ConfPage(ApplicationWindow* window);

    void initializePage() override;

private:
    QLabel* files;
};

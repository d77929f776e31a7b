// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/AppPage.h"

class PageData;
class QGridLayout;
class QGroupBox;
class QScrollArea;

/// The suite's tools for the project that was just created.
class DisplayOptionsPage : public AppPage
{
    Q_OBJECT

public:
    explicit DisplayOptionsPage(ApplicationWindow* owner);

    void initializePage() override;
    void cleanupPage() override;
    bool validatePage() override { return true; }
    bool isComplete() const override { return true; }

private:
    void buildButtons(PageData& launchers);
    void showButtonMenu(const QPoint& position);
    /// The first launcher page of the definitions; the others are never shown.
    static PageData* launcherPage();

    QGroupBox* buttonGroup;
    QGridLayout* buttonGrid;
    QScrollArea* scrollArea;
    bool hasButtons = false;
};

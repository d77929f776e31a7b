// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/AppPage.h"

class ElidedLabel;
class PageData;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QPushButton;
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

protected:
    /// The launcher page's own, if it names one.
    QString helpPage() const override;

private:
    void build() override;
    void createNotes(QLayout& layout);
    void showNotes();
    void buildButtons(PageData& launchers);
    void showButtonMenu(const QPoint& position);
    /// The first launcher page of the definitions; the others are never shown.
    static PageData* launcherPage();

    /// Names the project where no page before has.
    ElidedLabel* projectLabel = nullptr;
    QWidget* warning = nullptr;
    QLabel* warningIcon = nullptr;
    QLabel* warningText = nullptr;
    QPushButton* outputButton = nullptr;
    QGroupBox* buttonGroup = nullptr;
    QGridLayout* buttonGrid = nullptr;
    QScrollArea* scrollArea = nullptr;
    bool hasButtons = false;
};

// SPDX-License-Identifier: MIT
#include "wizard/DisplayOptionsPage.h"
#include "app/AppRegistry.h"
#include "launchers/PageData.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageSequence.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

DisplayOptionsPage::DisplayOptionsPage(ApplicationWindow* owner)
    : AppPage(owner, DisplayOptionsPageId)
    , buttonGroup(new QGroupBox)
    , buttonGrid(new QGridLayout)
    , scrollArea(new QScrollArea)
{
    setTitle(tr("Analyse and Display Operations"));
    setSubTitle(tr("Now that the project is created launch an application to analyse and display the project "
                   "information"));
    buttonGroup->setFlat(true);
    buttonGroup->setLayout(buttonGrid);
    // A disabled button gets no menu of its own, but its tool may run all the same.
    buttonGroup->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(buttonGroup, &QWidget::customContextMenuRequested, this, &DisplayOptionsPage::showButtonMenu);
    scrollArea->setWidget(buttonGroup);
    scrollArea->setWidgetResizable(true);
    // The page before is left at once, with all that its program said.
    auto* output = new QPushButton(tr("Show the &conversion's output..."));
    output->setAutoDefault(false);
    connect(output, &QPushButton::clicked, owner, &ApplicationWindow::showConversionOutput);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(scrollArea);
    layout->addWidget(output, 0, Qt::AlignLeft);
    // The page appears by itself: an Enter that was meant for the one before must not close the wizard.
    connect(owner, &QWizard::currentIdChanged, this, [owner](int id) {
        auto* finish = qobject_cast<QPushButton*>(owner->button(QWizard::FinishButton));
        if (id == DisplayOptionsPageId && finish) {
            finish->setDefault(false);
        }
    });
}

// Once, when they are first needed: until then the launchers are those of the C++ analyser, which decides what is
// there.
void DisplayOptionsPage::buildButtons(PageData& launchers)
{
    if (hasButtons) {
        return;
    }
    hasButtons = true;
    launchers.BuildButtons(buttonGrid);
    // What room is left goes to the end, so that the arrows stay beside their buttons.
    buttonGrid->setRowStretch(buttonGrid->rowCount(), 1);
    buttonGrid->setColumnStretch(buttonGrid->columnCount(), 1);
    // The grid has no constraint of its own, so the scroll area needs to be told how large it is.
    buttonGroup->setMinimumSize(buttonGrid->sizeHint() + QSize(20, 20));
}

void DisplayOptionsPage::showButtonMenu(const QPoint& position)
{
    const QWidget* button = buttonGroup->childAt(position);
    if (button && !button->actions().isEmpty()) {
        QMenu::exec(button->actions(), buttonGroup->mapToGlobal(position), nullptr, buttonGroup);
    }
}

PageData* DisplayOptionsPage::launcherPage()
{
    const auto& pages = appRegistry->definitions.applicationPages;
    return pages.empty() ? nullptr : pages.front().get();
}

void DisplayOptionsPage::initializePage()
{
    window->setOption(QWizard::NoBackButtonOnLastPage, true);
    window->setOption(QWizard::NoCancelButton, true);
    window->setOption(QWizard::HaveCustomButton1, true);
    window->setButtonText(QWizard::CustomButton1, tr("New Project Conversion"));
    if (PageData* launchers = launcherPage()) {
        buildButtons(*launchers);
        launchers->SetProjectFile(window->ProjectFile());
        launchers->SetIsORVC(window->isORVC);
    }
}

void DisplayOptionsPage::cleanupPage()
{
    if (PageData* launchers = launcherPage()) {
        launchers->ResetApplications();
    }
}

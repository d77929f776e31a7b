// SPDX-License-Identifier: MIT
#include "wizard/DisplayOptionsPage.h"
#include "app/AppRegistry.h"
#include "dialogs/ElidedLabel.h"
#include "launchers/PageData.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageSequence.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

DisplayOptionsPage::DisplayOptionsPage(ApplicationWindow* owner)
    : AppPage(owner, DisplayOptionsPageId)
{
    setTitle(tr("Analyse and Display Operations"));
    // The page appears by itself: an Enter that was meant for the one before must not close the wizard.
    connect(owner, &QWizard::currentIdChanged, this, [owner](int id) {
        auto* finish = qobject_cast<QPushButton*>(owner->button(QWizard::FinishButton));
        if (id == DisplayOptionsPageId && finish) {
            finish->setDefault(false);
        }
    });
}

void DisplayOptionsPage::build()
{
    projectLabel = new ElidedLabel;
    warning = new QWidget;
    warningIcon = new QLabel;
    warningText = new QLabel;
    outputButton = new QPushButton(tr("Show the &conversion's output..."));
    buttonGroup = new QGroupBox;
    buttonGrid = new QGridLayout;
    scrollArea = new QScrollArea;
    buttonGroup->setFlat(true);
    buttonGroup->setLayout(buttonGrid);
    // A disabled button gets no menu of its own, but its tool may run all the same.
    buttonGroup->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(buttonGroup, &QWidget::customContextMenuRequested, this, &DisplayOptionsPage::showButtonMenu);
    scrollArea->setWidget(buttonGroup);
    scrollArea->setWidgetResizable(true);
    scrollArea->setFocusPolicy(Qt::NoFocus);
    // The page before is left at once, with all that its program said.
    outputButton->setAutoDefault(false);
    connect(outputButton, &QPushButton::clicked, window, &ApplicationWindow::showConversionOutput);
    auto* layout = new QVBoxLayout(this);
    createNotes(*layout);
    layout->addWidget(scrollArea);
    layout->addWidget(outputButton, 0, Qt::AlignLeft);
}

void DisplayOptionsPage::createNotes(QLayout& layout)
{
    warningText->setTextFormat(Qt::PlainText);
    warningText->setWordWrap(true);
    warningText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* row = new QHBoxLayout(warning);
    row->setContentsMargins({});
    row->addWidget(warningIcon, 0, Qt::AlignTop);
    row->addWidget(warningText, 1);
    layout.addWidget(projectLabel);
    layout.addWidget(warning);
}

// A project that was opened has no conversion to tell of.
void DisplayOptionsPage::showNotes()
{
    const QString& opened = window->openedProject();
    const bool isNew = opened.isEmpty();
    setSubTitle(isNew ? tr("Now that the project is created launch an application to analyse and display the project "
                           "information")
                      : tr("Launch an application to analyse and display the project information"));
    projectLabel->setLine(isNew ? QString() : tr("Project: %1").arg(opened));
    projectLabel->setVisible(!isNew);
    const bool hasWarning = isNew && !window->conversionWarning.isEmpty();
    if (hasWarning) {
        const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
        warningIcon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
        warningText->setText(window->conversionWarning);
    }
    warning->setVisible(hasWarning);
    outputButton->setVisible(isNew);
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

QString DisplayOptionsPage::helpPage() const
{
    const PageData* launchers = launcherPage();
    return launchers && !launchers->helpPage.isEmpty() ? launchers->helpPage : AppPage::helpPage();
}

void DisplayOptionsPage::initializePage()
{
    window->setOption(QWizard::NoBackButtonOnLastPage, true);
    window->setOption(QWizard::NoCancelButton, true);
    window->setOption(QWizard::HaveCustomButton1, true);
    window->setButtonText(QWizard::CustomButton1, tr("New Project Conversion"));
    showNotes();
    if (PageData* launchers = launcherPage()) {
        buildButtons(*launchers);
        const QString& opened = window->openedProject();
        launchers->SetProjectFile(opened.isEmpty() ? window->ProjectFile() : opened);
        launchers->SetIsORVC(window->isORVC);
    }
}

void DisplayOptionsPage::cleanupPage()
{
    if (PageData* launchers = launcherPage()) {
        launchers->ResetApplications();
    }
}

// SPDX-License-Identifier: MIT
#include "wizard/DisplayOptionsPage.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageSequence.h"

#include <QLabel>
#include <QVBoxLayout>

DisplayOptionsPage::DisplayOptionsPage(ApplicationWindow* owner)
    : AppPage(owner, DisplayOptionsPageId)
    , created(new QLabel)
{
    setTitle(tr("Analyse and Display Operations"));
    setSubTitle(tr("Now that the project is created launch an application to analyse and display the project "
                   "information"));
    created->setTextFormat(Qt::PlainText);
    created->setWordWrap(true);
    (new QVBoxLayout(this))->addWidget(created);
}

void DisplayOptionsPage::initializePage()
{
    window->setOption(QWizard::NoBackButtonOnLastPage, true);
    window->setOption(QWizard::NoCancelButton, true);
    window->setOption(QWizard::HaveCustomButton1, true);
    window->setButtonText(QWizard::CustomButton1, tr("New Project Conversion"));
    created->setText(tr("New project file: ") + window->ProjectFile());
}

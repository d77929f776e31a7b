// SPDX-License-Identifier: MIT
#include "wizard/SetProductPage.h"
#include "dialogs/AlarmLabel.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/ColumnBox.h"
#include "wizard/PageScrollArea.h"
#include "wizard/PageSequence.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

SetProductPage::SetProductPage(ApplicationWindow* owner)
    : AppPage(owner, SetProductPageId)
    , cRadio(new QRadioButton(tr("Orv C [Project is 'C' Code Only]")))
    , cppRadio(new QRadioButton(tr("Orv C++ [Project contains 'C++' Code]")))
    , endNote(new QLabel)
{
    setTitle(tr("Select KOVRA Analyser Tool"));
    setSubTitle(tr("Specify which Orv tool will be used to analyse the source code."));

    auto* explanation = new QLabel(tr(
        "You need to select which of the KOVRA analyser tools you will be using to analyse the newly created project. "
        "\n\nOrv C and Orv C++ operate with different configuration settings so it is important to specify which of "
        "these analysers you will be using. \n\nIf your project is purely 'C' code then select Orv C. \n\nIf your "
        "project is a mixture of 'C' and 'C++' code then select Orv C++ or create separate projects for the 'C' and "
        "'C++' parts of your project."));
    explanation->setWordWrap(true);
    auto* explanationBox = new QGroupBox;
    (new QHBoxLayout(explanationBox))->addWidget(explanation);

    // Side by side, or where a large font takes too much room for that, below each other.
    auto* analyserBox = new ColumnBox(2);
    analyserBox->setTitle(tr("KOVRA Analyser"));
    analyserBox->add(cRadio);
    analyserBox->add(cppRadio);

    auto* grid = new QGridLayout(PageScrollArea::fill(*this));
    grid->addWidget(explanationBox, 0, 0);
    grid->addWidget(analyserBox, 1, 0);
    grid->addWidget(endNote, 2, 0);
    grid->setRowStretch(3, 1);
    endNote->setWordWrap(true);
    endNote->setText(ApplicationWindow::noConversionText());
}

SetProductPage::~SetProductPage() = default;

QWidget& SetProductPage::warning()
{
    if (!warningBox) {
        warningBox = std::make_unique<QGroupBox>();
        auto* text =
            new AlarmLabel(tr("<font color='red'><U>WARNING</U><P>There are no KOVRA Analysers installed on this "
                              "machine.</font>"));
        (new QHBoxLayout(warningBox.get()))->addWidget(text);
        warningBox->setWindowTitle(window->windowTitle());
        warningBox->setWindowIcon(window->windowIcon());
        // It must not keep the program running once the wizard is gone.
        warningBox->setAttribute(Qt::WA_QuitOnClose, false);
        warningBox->setAttribute(Qt::WA_ShowWithoutActivating);
        connect(window, &QDialog::finished, warningBox.get(), &QWidget::hide);
    }
    return *warningBox;
}

void SetProductPage::initializePage()
{
    (window->isORVC ? cRadio : cppRadio)->setChecked(true);
    endNote->setVisible(nextId() == NoPageId);
    if (warningBox) {
        // So that it comes to the front again.
        warningBox->hide();
    }
    if (window->noAnalyserInstalled) {
        warning().show();
    }
}

void SetProductPage::cleanupPage()
{
    window->SetAnalyser(cRadio->isChecked());
}

bool SetProductPage::validatePage()
{
    window->SetAnalyser(cRadio->isChecked());
    return true;
}

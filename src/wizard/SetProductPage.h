// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/AppPage.h"

#include <memory>

class QGroupBox;
class QLabel;
class QRadioButton;

/// The choice between the C and the C++ analyser.
class SetProductPage : public AppPage
{
    Q_OBJECT

public:
    explicit SetProductPage(ApplicationWindow* owner);
    ~SetProductPage() override;

    void initializePage() override;
    /// Going back keeps the choice.
    void cleanupPage() override;
    bool validatePage() override;
    bool isComplete() const override { return true; }

private:
    /// What is shown when no analyser is installed.
    QWidget& warning();

    QRadioButton* cRadio;
    QRadioButton* cppRadio;
    /// Says that the wizard ends here without a conversion.
    QLabel* endNote;
    /// A window of its own beside the wizard, made when it is first shown.
    std::unique_ptr<QGroupBox> warningBox;
};

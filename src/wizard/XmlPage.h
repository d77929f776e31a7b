// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/InputValues.h"
#include "wizard/AppPage.h"

class QGridLayout;
class QGroupBox;
struct ProjectCreatorData;

/// The input fields that the chosen conversion type declares.
class XmlPage : public AppPage
{
    Q_OBJECT

public:
    explicit XmlPage(ApplicationWindow* owner);

    void build() override;
    void initializePage() override;
    /// Going back keeps what was entered.
    void cleanupPage() override;
    bool validatePage() override;
    bool isComplete() const override;
    QWidget* fieldToMend() const override;

    /// The field's current value; with store the controls' values are remembered in the records.
    QString Value(ArgumentDefinition& definition, bool store) const;

private:
    /// The fields of a conversion type, built when it is first chosen.
    QGroupBox& panelOf(ProjectCreatorData& creator);
    void storeValues();
    void load(const ArgumentDefinitions& definitions);
    void valueChanged();
    FieldState fieldState(const ArgumentDefinition& definition) const;
    const ArgumentDefinition* firstIncomplete() const;

    QGridLayout* grid = nullptr;
};

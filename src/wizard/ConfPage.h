// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/AppPage.h"
#include "wizard/SelectFileWidgets.h"

#include <memory>
#include <vector>

enum class ConfigurationKind;
class QLabel;
class QLayout;
class QuietCombo;

/// The three configuration files of the new project, and the compliance modules that preset them.
class ConfPage : public AppPage
{
    Q_OBJECT

public:
    explicit ConfPage(ApplicationWindow* owner);
    ~ConfPage() override;

    void initializePage() override;
    bool validatePage() override;
    bool isComplete() const override;
    QWidget* fieldToMend() const override;

public Q_SLOTS:
    void CPersonalityChanged(const QString& fileName);
    void APersonalityChanged(const QString& fileName);
    void MPersonalityChanged(const QString& fileName);
    void ComplianceChanged(int index);

private:
    void build() override;
    struct Field
    {
        ConfigurationKind kind;
        SelectFileWidgets& widgets;
        QLabel* label;
    };

    QLayout* createFileFields();
    void fillComplianceModules();
    void apply(SelectFileWidgets& field, const QString& moduleFile);
    void accept(const SelectFileWidgets& field, QString& stateField, const QString& fileName);
    void updateHint();
    const Field* firstMissing() const;

    std::unique_ptr<SelectFileWidgets> compilerField;
    std::unique_ptr<SelectFileWidgets> analyserField;
    std::unique_ptr<SelectFileWidgets> messageField;
    QuietCombo* complianceCombo = nullptr;
    /// In the order in which they are asked for.
    std::vector<Field> fields;
    QString noneText;
    QWidget* complianceBox = nullptr;
    bool restoring = false;
};

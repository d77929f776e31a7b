// SPDX-License-Identifier: MIT
#include "wizard/ConfPage.h"
#include "app/AppRegistry.h"
#include "dialogs/MessageBox.h"
#include "personality/FileScans.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageSequence.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

SelectFileWidgets::Options fieldOptions()
{
    return {.withFind = true, .startFolder = QDir::currentPath(), .withEdit = true};
}

void showField(const SelectFileWidgets& field, QLabel& label, bool shown)
{
    field.frame()->setVisible(shown);
    label.setVisible(shown);
}

} // namespace

ConfPage::ConfPage(ApplicationWindow* owner)
    : AppPage(owner, ConfPageId)
    , compilerField(tr("Select Compiler Configuration Options"), tr("*.p_c"), fieldOptions())
    , analyserField(tr("Select Project Configuration Options"), tr("*.p_a"), fieldOptions())
    , messageField(tr("Select Message Configuration Options"), tr("*.p_s"), fieldOptions())
    , complianceCombo(new QComboBox)
    , compilerLabel(new QLabel(tr("Compiler Configuration File:")))
    , analyserLabel(new QLabel(tr("Project Configuration Template File:")))
    , messageLabel(new QLabel(tr("Message Configuration File:")))
    , noneText(tr("None"))
    , hint(new QLabel)
{
    auto* modules = new QGroupBox(tr("Compliance Modules:"));
    (new QHBoxLayout(modules))->addWidget(complianceCombo);
    complianceCombo->setAccessibleName(modules->title());
    complianceBox = modules;
    auto* files = new QGroupBox(tr("Configuration Files:"));
    files->setLayout(createFileFields());
    hint->setTextFormat(Qt::PlainText);
    hint->setWordWrap(true);

    auto* grid = new QGridLayout(this);
    grid->addWidget(modules, 0, 0);
    grid->addWidget(files, 1, 0);
    grid->addWidget(hint, 2, 0);
    grid->setRowStretch(3, 1);

    connect(complianceCombo, &QComboBox::currentIndexChanged, this, &ConfPage::ComplianceChanged);
    connect(compilerField.lineEdit(), &QLineEdit::textChanged, this, &ConfPage::CPersonalityChanged);
    connect(analyserField.lineEdit(), &QLineEdit::textChanged, this, &ConfPage::APersonalityChanged);
    connect(messageField.lineEdit(), &QLineEdit::textChanged, this, &ConfPage::MPersonalityChanged);
    for (const SelectFileWidgets* field : {&compilerField, &analyserField, &messageField}) {
        connect(field->lineEdit(), &QLineEdit::textChanged, this, &ConfPage::completeChanged);
        connect(field->lineEdit(), &QLineEdit::textChanged, this, &ConfPage::updateHint);
    }
}

QLayout* ConfPage::createFileFields()
{
    auto* grid = new QGridLayout;
    int row = 0;
    for (const auto& [field, label] : {std::pair{&messageField, messageLabel}, std::pair{&analyserField, analyserLabel},
                                       std::pair{&compilerField, compilerLabel}}) {
        if (row > 0) {
            grid->setRowMinimumHeight(row++, fontMetrics().height() / 2);
        }
        label->setBuddy(field->lineEdit());
        field->lineEdit()->setAccessibleName(label->text());
        grid->addWidget(label, row++, 0);
        grid->addWidget(field->frame(), row++, 0);
    }
    return grid;
}

void ConfPage::initializePage()
{
    const QString analyser = ApplicationWindow::AnalyserName(window->isORVC);
    setTitle(tr("%1 Configuration Information").arg(analyser));
    setSubTitle(tr("Specify configuration information required by the new %1 project file").arg(analyser));
    for (SelectFileWidgets* field : {&compilerField, &analyserField, &messageField}) {
        field->SetStartFolder(window->defaultPersonalityLocation);
    }
    compilerField.lineEdit()->setText(window->GetCompilerPersonality());
    analyserField.lineEdit()->setText(window->GetAnalyserPersonality());
    messageField.lineEdit()->setText(window->GetMessagePersonality());
    const ProjectCreatorData* creator = window->projectCreator;
    showField(compilerField, *compilerLabel, creator && creator->hasCompilerPersonality);
    showField(analyserField, *analyserLabel, creator && creator->hasAnalyserPersonality);
    showField(messageField, *messageLabel, creator && creator->hasMessagePersonality);
    fillComplianceModules();
    updateHint();
}

void ConfPage::fillComplianceModules()
{
    complianceCombo->clear();
    complianceCombo->addItem(noneText);
    for (const auto& module : appRegistry->definitions.complianceModules) {
        if (module->isC == window->isORVC && QFile::exists(module->location)) {
            complianceCombo->addItem(module->name, QVariant::fromValue(module.get()));
        }
    }
    const bool anyModule = complianceCombo->count() > 1;
    complianceCombo->setVisible(anyModule);
    complianceBox->setVisible(anyModule);
}

bool ConfPage::validatePage()
{
    window->compilerPersonality = compilerField.lineEdit()->text();
    window->analyserPersonality = analyserField.lineEdit()->text();
    window->messagePersonality = messageField.lineEdit()->text();
    return true;
}

bool ConfPage::isComplete() const
{
    return !firstMissing();
}

const QLabel* ConfPage::firstMissing() const
{
    for (const auto& [field, label] : {std::pair{&messageField, messageLabel}, std::pair{&analyserField, analyserLabel},
                                       std::pair{&compilerField, compilerLabel}}) {
        if (!label->isHidden() && !field->isValid()) {
            return label;
        }
    }
    return nullptr;
}

void ConfPage::updateHint()
{
    const QLabel* missing = firstMissing();
    hint->setText(missing ? tr("To continue, name an existing file as \"%1\".").arg(missing->text().chopped(1))
                          : QString());
}

void ConfPage::CPersonalityChanged(const QString& fileName)
{
    accept(compilerField, window->compilerPersonality, fileName);
}

void ConfPage::APersonalityChanged(const QString& fileName)
{
    accept(analyserField, window->analyserPersonality, fileName);
}

void ConfPage::MPersonalityChanged(const QString& fileName)
{
    accept(messageField, window->messagePersonality, fileName);
}

void ConfPage::accept(SelectFileWidgets& field, QString& stateField, const QString& fileName)
{
    // What comes back after a refusal is not judged again: it may be wrong itself, and one box is enough.
    if (restoring || !FileScans::isForOtherAnalyser(fileName, window->isORVC)) {
        stateField = field.lineEdit()->text();
        return;
    }
    MessageBox::warn(
        window, tr("Incorrect Configuration File Selected"),
        tr("A %1 configuration file can not be selected when using the %2 analyser")
            .arg(ApplicationWindow::AnalyserName(!window->isORVC), ApplicationWindow::AnalyserName(window->isORVC)));
    const QScopedValueRollback guard(restoring, true);
    field.lineEdit()->setText(stateField);
}

void ConfPage::ComplianceChanged(int /*index*/)
{
    for (SelectFileWidgets* field : {&compilerField, &analyserField, &messageField}) {
        field->SetReadOnly(false);
    }
    if (const auto* module = complianceCombo->currentData().value<ComplianceModule*>()) {
        apply(compilerField, module->compilerPersonality);
        apply(analyserField, module->analyserPersonality);
        apply(messageField, module->messagePersonality);
    }
}

void ConfPage::apply(SelectFileWidgets& field, const QString& moduleFile)
{
    if (QFile::exists(moduleFile)) {
        field.SetReadOnly(true);
    }
    if (!moduleFile.isEmpty()) {
        field.lineEdit()->setText(QDir::toNativeSeparators(moduleFile));
    }
}

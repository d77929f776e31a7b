// SPDX-License-Identifier: MIT
#include "wizard/ConfPage.h"
#include "app/AppRegistry.h"
#include "definitions/ConfigurationKind.h"
#include "dialogs/MessageBox.h"
#include "personality/FileScans.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageScrollArea.h"
#include "wizard/PageSequence.h"
#include "wizard/QuietCombo.h"

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

std::unique_ptr<SelectFileWidgets> fieldFor(ConfigurationKind kind, const QString& caption)
{
    return std::make_unique<SelectFileWidgets>(
        caption, factsOf(kind).pattern,
        SelectFileWidgets::Options{.withFind = true, .startFolder = QDir::currentPath(), .withEdit = true});
}

} // namespace

ConfPage::ConfPage(ApplicationWindow* owner)
    : AppPage(owner, ConfPageId)
    , noneText(tr("None"))
{
}

ConfPage::~ConfPage() = default;

void ConfPage::build()
{
    compilerField = fieldFor(ConfigurationKind::Compiler, tr("Select Compiler Configuration Options"));
    analyserField = fieldFor(ConfigurationKind::Analyser, tr("Select Project Configuration Options"));
    messageField = fieldFor(ConfigurationKind::Message, tr("Select Message Configuration Options"));
    fields.push_back({ConfigurationKind::Message, *messageField, new QLabel(tr("Message Configuration File:"))});
    fields.push_back(
        {ConfigurationKind::Analyser, *analyserField, new QLabel(tr("Project Configuration Template File:"))});
    fields.push_back({ConfigurationKind::Compiler, *compilerField, new QLabel(tr("Compiler Configuration File:"))});
    complianceCombo = new QuietCombo;
    auto* modules = new QGroupBox(tr("Compliance Modules:"));
    (new QHBoxLayout(modules))->addWidget(complianceCombo);
    complianceCombo->setAccessibleName(modules->title());
    complianceBox = modules;
    auto* files = new QGroupBox(tr("Configuration Files:"));
    files->setLayout(createFileFields());

    auto* grid = new QGridLayout(PageScrollArea::fill(*this));
    grid->addWidget(modules, 0, 0);
    grid->addWidget(files, 1, 0);
    grid->setRowStretch(2, 1);
    addHint();

    connect(complianceCombo, &QComboBox::currentIndexChanged, this, &ConfPage::ComplianceChanged);
    connect(compilerField->lineEdit(), &QLineEdit::textChanged, this, &ConfPage::CPersonalityChanged);
    connect(analyserField->lineEdit(), &QLineEdit::textChanged, this, &ConfPage::APersonalityChanged);
    connect(messageField->lineEdit(), &QLineEdit::textChanged, this, &ConfPage::MPersonalityChanged);
    for (const Field& field : fields) {
        connect(field.widgets.lineEdit(), &QLineEdit::textChanged, this, &ConfPage::completeChanged);
        connect(field.widgets.lineEdit(), &QLineEdit::textChanged, this, &ConfPage::updateHint);
    }
}

QLayout* ConfPage::createFileFields()
{
    auto* grid = new QGridLayout;
    int row = 0;
    for (const Field& field : fields) {
        if (row > 0) {
            grid->setRowMinimumHeight(row++, fontMetrics().height() / 2);
        }
        field.label->setBuddy(field.widgets.lineEdit());
        field.widgets.lineEdit()->setAccessibleName(field.label->text());
        grid->addWidget(field.label, row++, 0);
        grid->addWidget(field.widgets.frame(), row++, 0);
    }
    return grid;
}

void ConfPage::initializePage()
{
    const QString analyser = ApplicationWindow::AnalyserName(window->isORVC);
    setTitle(tr("%1 Configuration Information").arg(analyser));
    setSubTitle(tr("Specify configuration information required by the new %1 project file").arg(analyser));
    const ProjectCreatorData* creator = window->projectCreator;
    for (const Field& field : fields) {
        field.widgets.SetStartFolder(window->defaultPersonalityLocation);
        field.widgets.lineEdit()->setText(QDir::toNativeSeparators(window->configurationOrPreset(field.kind)));
        const bool asked = creator && creator->*factsOf(field.kind).asked;
        field.widgets.frame()->setVisible(asked);
        field.label->setVisible(asked);
    }
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
    for (const Field& field : fields) {
        window->configuration(field.kind) = field.widgets.lineEdit()->text();
    }
    return true;
}

bool ConfPage::isComplete() const
{
    return !firstMissing();
}

QWidget* ConfPage::fieldToMend() const
{
    const Field* missing = firstMissing();
    return missing ? missing->widgets.lineEdit() : nullptr;
}

const ConfPage::Field* ConfPage::firstMissing() const
{
    for (const Field& field : fields) {
        if (!field.label->isHidden() && !field.widgets.isValid()) {
            return &field;
        }
    }
    return nullptr;
}

void ConfPage::updateHint()
{
    const Field* missing = firstMissing();
    showHint(missing ? tr("To continue, name an existing file as \"%1\".").arg(missing->label->text().chopped(1))
                     : QString());
}

void ConfPage::CPersonalityChanged(const QString& fileName)
{
    accept(*compilerField, window->compilerPersonality, fileName);
}

void ConfPage::APersonalityChanged(const QString& fileName)
{
    accept(*analyserField, window->analyserPersonality, fileName);
}

void ConfPage::MPersonalityChanged(const QString& fileName)
{
    accept(*messageField, window->messagePersonality, fileName);
}

void ConfPage::accept(const SelectFileWidgets& field, QString& stateField, const QString& fileName)
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
    const auto* module = complianceCombo->currentData().value<ComplianceModule*>();
    for (const Field& field : fields) {
        field.widgets.SetReadOnly(false);
        if (module) {
            apply(field.widgets, module->*factsOf(field.kind).moduleFile);
        }
    }
}

void ConfPage::apply(SelectFileWidgets& field, const QString& moduleFile)
{
    if (moduleFile.isEmpty()) {
        return;
    }
    const QString path = QDir::toNativeSeparators(moduleFile);
    field.lineEdit()->setText(path);
    // One that was refused has brought the old text back, which is the user's to change.
    field.SetReadOnly(QFile::exists(moduleFile) && field.lineEdit()->text() == path);
}

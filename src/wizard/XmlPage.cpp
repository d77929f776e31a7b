// SPDX-License-Identifier: MIT
#include "wizard/XmlPage.h"
#include "app/AppRegistry.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/InputPanel.h"
#include "wizard/PageScrollArea.h"
#include "wizard/PageSequence.h"
#include "wizard/SelectFileWidgets.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>

#include <utility>

namespace {

// The records outlive a window and its controls.
void forgetControls(const ArgumentDefinitions& definitions)
{
    for (const auto& definition : definitions) {
        definition->lineEdit = nullptr;
        definition->fileWidgets = nullptr;
        definition->button = nullptr;
        definition->widgets.clear();
        forgetControls(definition->children);
    }
}

} // namespace

XmlPage::XmlPage(ApplicationWindow* owner)
    : AppPage(owner, XmlPageId)
{
    setTitle(tr("Project Conversion Information"));
    setSubTitle(tr("Specify Information that identifies project to be converted"));
    for (const auto& creator : appRegistry->definitions.projectCreators) {
        creator->panel = nullptr;
        forgetControls(creator->inputData);
    }
}

void XmlPage::build()
{
    auto* layout = new QGridLayout(PageScrollArea::fill(*this));
    layout->setRowStretch(1, 1);
    grid = layout;
    addHint();
}

void XmlPage::initializePage()
{
    for (const auto& creator : appRegistry->definitions.projectCreators) {
        if (creator->panel) {
            creator->panel->hide();
        }
    }
    if (!window->projectCreator) {
        return;
    }
    panelOf(*window->projectCreator).show();
    load(window->projectCreator->inputData);
    valueChanged();
}

QGroupBox& XmlPage::panelOf(ProjectCreatorData& creator)
{
    if (!creator.panel) {
        creator.panel =
            InputPanel::BuildGroup(creator.inputData, creator.name, 1, window->isORVC, [this] { valueChanged(); });
        grid->addWidget(creator.panel, 0, 0);
    }
    return *creator.panel;
}

void XmlPage::load(const ArgumentDefinitions& definitions)
{
    for (const auto& definition : definitions) {
        load(definition->children);
        const QString& value =
            definition->value.isEmpty() ? definition->DefaultValue(window->isORVC) : definition->value;
        if (definition->fileWidgets) {
            definition->fileWidgets->SetStartFolder(window->fileDir);
        }
        if (definition->lineEdit) {
            definition->lineEdit->setText(value);
        }
        if (definition->button) {
            definition->button->setChecked(value.toInt() > 0);
        }
        for (QWidget* widget : std::as_const(definition->widgets)) {
            widget->setVisible(!definition->isHiddenFor(window->isORVC));
        }
    }
}

void XmlPage::cleanupPage()
{
    storeValues();
}

void XmlPage::storeValues()
{
    if (window->projectCreator) {
        for (const auto& definition : window->projectCreator->inputData) {
            Value(*definition, true);
        }
    }
}

bool XmlPage::validatePage()
{
    storeValues();
    return true;
}

bool XmlPage::isComplete() const
{
    return window->projectCreator && !firstIncomplete();
}

QWidget* XmlPage::fieldToMend() const
{
    const ArgumentDefinition* missing = window->projectCreator ? firstIncomplete() : nullptr;
    // Of a group it is the first thing in it.
    while (missing && !missing->lineEdit && !missing->button && !missing->children.empty()) {
        missing = missing->children.front().get();
    }
    if (!missing) {
        return nullptr;
    }
    return missing->lineEdit ? static_cast<QWidget*>(missing->lineEdit) : missing->button;
}

QString XmlPage::Value(ArgumentDefinition& definition, bool store) const
{
    const FieldSource source = [this](const ArgumentDefinition& field) { return fieldState(field); };
    QString text = InputValues::value(definition, source);
    if (store) {
        InputValues::remember(definition, source);
    }
    return text;
}

void XmlPage::valueChanged()
{
    const ArgumentDefinition* missing = window->projectCreator ? firstIncomplete() : nullptr;
    if (!missing) {
        showHint({});
    } else if (missing->fileMustExist) {
        showHint(tr("To continue, name an existing file or folder in \"%1\".").arg(missing->displayName));
    } else {
        showHint(tr("To continue, fill in \"%1\".").arg(missing->displayName));
    }
    Q_EMIT completeChanged();
}

FieldState XmlPage::fieldState(const ArgumentDefinition& definition) const
{
    FieldState state;
    if (definition.lineEdit) {
        state.hasText = true;
        state.textEnabled = definition.lineEdit->isEnabled();
        state.text = definition.lineEdit->text();
    }
    if (definition.button) {
        state.hasSwitch = true;
        state.switchActive = definition.button->isVisibleTo(this) && definition.button->isEnabled();
        state.checked = definition.button->isChecked();
    }
    return state;
}

const ArgumentDefinition* XmlPage::firstIncomplete() const
{
    return InputValues::firstIncomplete(window->projectCreator->inputData,
                                        [this](const ArgumentDefinition& field) { return fieldState(field); });
}

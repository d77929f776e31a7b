// SPDX-License-Identifier: MIT
#include "wizard/InputPanel.h"
#include "dialogs/PlainText.h"
#include "wizard/ColumnBox.h"
#include "wizard/FieldEdit.h"
#include "wizard/SelectFileWidgets.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>

#include <algorithm>

namespace {

int oneToFive(int columns)
{
    return columns < 1 || columns > 5 ? 1 : columns;
}

/// What a control shows of a name: one long name would widen all of the page. Its tool tip holds the whole. A label has
/// to leave room for the field beside it.
QString shownName(const QString& name, const QWidget& control)
{
    constexpr int longest = 40;
    const QFontMetrics metrics = control.fontMetrics();
    const int width =
        std::min(longest * metrics.averageCharWidth(),
                 control.screen()->availableSize().width() / (qobject_cast<const QLabel*>(&control) ? 4 : 2));
    return PlainText::withoutMnemonic(metrics.elidedText(name, Qt::ElideMiddle, width));
}

/// The whole name, where it was cut, and the help.
QString toolTipOf(const QString& name, const QString& help, const QWidget& control)
{
    QStringList lines{help};
    if (shownName(name, control) != PlainText::withoutMnemonic(name)) {
        lines.prepend(name);
    }
    lines.removeAll(QString());
    return PlainText::toolTip(lines.join(u'\n'));
}

/// Builds the fields of one box; its radio buttons exclude each other.
class GroupBuilder
{
public:
    GroupBuilder(const QString& title, int columns, bool forC, const std::function<void()>& onChange)
        : box(new ColumnBox(columns))
        , isC(forC)
        , changed(onChange)
    {
        box->setTitle(shownName(title, *box));
        box->setAccessibleName(title);
        box->setToolTip(toolTipOf(title, {}, *box));
    }

    QGroupBox* build(const ArgumentDefinitions& definitions)
    {
        for (const auto& definition : definitions) {
            if (definition->inputType == InputType::Group) {
                box->add(InputPanel::BuildGroup(definition->children, definition->displayName, definition->columns, isC,
                                                changed));
            } else {
                box->add(buildField(*definition), oneToFive(definition->columns));
            }
        }
        alignLabels();
        return box;
    }

private:
    QFrame* buildField(ArgumentDefinition& definition)
    {
        definition.widgets.clear();
        auto* frame = new QFrame;
        auto* row = new QHBoxLayout(frame);
        row->setContentsMargins(0, 0, 0, 0);
        QLabel* label = nullptr;
        if (!definition.isSwitch()) {
            label = new QLabel;
            label->setText(shownName(definition.displayName, *label));
            label->setTextFormat(Qt::PlainText);
            label->setToolTip(toolTipOf(definition.displayName, definition.hoverHelp, *label));
            row->addWidget(label);
            definition.widgets += label;
            labels += label;
        }
        QWidget* control = definition.isSwitch() ? buildSwitch(definition, *row) : buildText(definition, *row);
        const QWidget& named = label ? static_cast<const QWidget&>(*label) : *control;
        control->setToolTip(toolTipOf(definition.displayName, definition.hoverHelp, named));
        control->setAccessibleName(definition.displayName);
        definition.widgets += control;
        if (label) {
            label->setBuddy(control);
        }
        return frame;
    }

    QWidget* buildText(ArgumentDefinition& definition, QHBoxLayout& row)
    {
        const QString& preset = definition.DefaultValue(isC);
        if (definition.inputType == InputType::Edit) {
            definition.lineEdit = new FieldEdit(preset);
            row.addWidget(definition.lineEdit);
        } else {
            const bool isFile = definition.inputType == InputType::File;
            const bool presetExists = !preset.isEmpty() && QFile::exists(preset);
            const QString start = isFile || presetExists ? preset : QDir::currentPath();
            auto* field = new SelectFileWidgets(definition.displayName, definition.extension,
                                                {.withFind = isFile, .selectFiles = isFile, .startFolder = start});
            field->setParent(box);
            row.addWidget(field->frame());
            definition.lineEdit = field->lineEdit();
            if (isFile) {
                definition.fileWidgets = field;
            }
            // With it the buttons of a hidden field go.
            definition.widgets += field->frame();
            if (!isFile || presetExists) {
                field->SetValue(start);
            }
        }
        QObject::connect(definition.lineEdit, &QLineEdit::textChanged, box, changed);
        return definition.lineEdit;
    }

    QWidget* buildSwitch(ArgumentDefinition& definition, QHBoxLayout& row)
    {
        const QString text = shownName(definition.displayName, *box);
        if (definition.inputType == InputType::Check) {
            definition.button = new QCheckBox(text);
        } else {
            definition.button = new QRadioButton(text);
            if (!radios) {
                radios = new QButtonGroup(box);
            }
            radios->addButton(definition.button);
        }
        definition.button->setChecked(definition.DefaultValue(isC).toInt() > 0);
        row.addWidget(definition.button);
        QObject::connect(definition.button, &QAbstractButton::toggled, box, changed);
        return definition.button;
    }

    // So that the fields begin in one line.
    void alignLabels() const
    {
        int widest = 0;
        for (const QLabel* label : labels) {
            widest = std::max(widest, label->sizeHint().width());
        }
        for (QLabel* label : labels) {
            label->setMinimumWidth(widest);
        }
    }

    ColumnBox* box;
    QList<QLabel*> labels;
    QButtonGroup* radios = nullptr;
    bool isC;
    const std::function<void()>& changed;
};

} // namespace

QGroupBox* InputPanel::BuildGroup(const ArgumentDefinitions& definitions, const QString& title, int columns, bool isC,
                                  const std::function<void()>& changed)
{
    return GroupBuilder(title, oneToFive(columns), isC, changed).build(definitions);
}

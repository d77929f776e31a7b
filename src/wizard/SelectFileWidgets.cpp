// SPDX-License-Identifier: MIT
#include "wizard/SelectFileWidgets.h"
#include "dialogs/MessageBox.h"
#include "wizard/OrvWizardWindow.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SelectFileWidgets::SelectFileWidgets(const QString& fieldCaption, const QString& fileFilter, const Options& options)
    : emitEditSignal(options.emitEditSignal)
    , folderMode(!options.selectFiles)
    , frameWidget(options.inGroupBox ? static_cast<QWidget*>(new QGroupBox(fieldCaption)) : new QFrame)
    , caption(fieldCaption)
    , filter(fileFilter)
    , startFolder(options.startFolder)
{
    historyCombo = new QComboBox(frameWidget);
    edit = new QLineEdit(frameWidget);
    normalColour = edit->palette().brush(edit->foregroundRole()).color();
    createButtons();
    layOut(options);
    connect(edit, &QLineEdit::textChanged, this, &SelectFileWidgets::ValChanged);
    connect(editButton, &QPushButton::clicked, this, qOverload<>(&SelectFileWidgets::EditFile));
    connect(browseButton, &QPushButton::clicked, this, &SelectFileWidgets::GetAFile);
}

SelectFileWidgets::~SelectFileWidgets()
{
    if (frameWidget && !frameWidget->parent()) {
        delete frameWidget;
    }
}

void SelectFileWidgets::createButtons()
{
    editButton = new QPushButton(QIcon(u":/editicon.xpm"_s), QString(), frameWidget);
    editButton->setToolTip(tr("Edit the specified file"));
    editButton->setAccessibleName(tr("Edit the specified file"));
    editButton->setEnabled(false);
    browseButton = new QPushButton(tr("&Browse..."), frameWidget);
    browseButton->setToolTip(tr("Browse the file directory structure to locate the required file"));
}

void SelectFileWidgets::layOut(const Options& options)
{
    auto* row = new QHBoxLayout(frameWidget);
    if (!options.inGroupBox) {
        row->setContentsMargins(0, 0, 0, 0);
    }
    if (options.withHistory) {
        historyCombo->setEditable(true);
        historyCombo->setInsertPolicy(QComboBox::InsertAtTop);
        historyCombo->setDuplicatesEnabled(false);
        historyCombo->setLineEdit(edit);
        row->addWidget(historyCombo, 4);
    } else {
        historyCombo->hide();
        row->addWidget(edit, 4);
    }
    if (options.withEdit) {
        row->addWidget(editButton);
    } else {
        editButton->hide();
    }
    row->addWidget(browseButton);
}

void SelectFileWidgets::SetValue(const QString& text)
{
    QString value = QDir::toNativeSeparators(text);
    if (value.isEmpty()) {
        value = historyCombo->itemText(0);
    } else {
        const int known = historyCombo->findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (known >= 0) {
            historyCombo->removeItem(known);
        }
        historyCombo->insertItem(0, value);
    }
    edit->setText(value);
}

void SelectFileWidgets::SetReadOnly(bool readOnly)
{
    edit->setReadOnly(readOnly);
    editButton->setVisible(!readOnly);
    browseButton->setVisible(!readOnly);
}

void SelectFileWidgets::ValChanged(QString text)
{
    Q_EMIT ValueChanged(text);
    editButton->setEnabled(!text.isEmpty());
    valid = QFile::exists(text.trimmed());
    QPalette palette;
    palette.setBrush(QPalette::All, edit->foregroundRole(), QBrush(valid ? normalColour : QColor(Qt::red)));
    edit->setPalette(palette);
}

void SelectFileWidgets::GetAFile()
{
    const QString start = edit->text().isEmpty() ? startFolder : edit->text();
    QWidget* parent = OrvWizardWindow::current();
    takeChosen(folderMode ? QFileDialog::getExistingDirectory(parent, caption, start, QFileDialog::ShowDirsOnly)
                          : QFileDialog::getOpenFileName(parent, caption, start, filter));
}

void SelectFileWidgets::takeChosen(const QString& path)
{
    if (!path.isEmpty()) {
        SetValue(path);
    }
}

void SelectFileWidgets::EditFile()
{
    const QString name = edit->text();
    if (!QFile::exists(name)) {
        MessageBox::warn(OrvWizardWindow::current(), tr("Edit failed"),
                         tr("Can not edit file, the file does not exist"));
        return;
    }
    if (emitEditSignal) {
        Q_EMIT EditFile(name);
        return;
    }
    showFile(name);
}

void SelectFileWidgets::showFile(const QString& name) const
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        MessageBox::warn(OrvWizardWindow::current(), tr("Edit failed"), tr("Can not open file"));
        return;
    }
    QDialog dialog;
    dialog.setWindowTitle(name);
    dialog.resize(600, 600);
    auto* view = new QPlainTextEdit(QString::fromLocal8Bit(file.readAll()));
    view->setReadOnly(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(view);
    layout->addWidget(buttons);
    dialog.exec();
}

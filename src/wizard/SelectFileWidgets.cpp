// SPDX-License-Identifier: MIT
#include "wizard/SelectFileWidgets.h"
#include "app/AppRegistry.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/FindDialog.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <initializer_list>

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
    connect(findButton, &QPushButton::clicked, this, &SelectFileWidgets::FindAFile);
}

SelectFileWidgets::~SelectFileWidgets()
{
    if (frameWidget && !frameWidget->parent()) {
        delete frameWidget;
    }
}

void SelectFileWidgets::createButtons()
{
    editButton = new QPushButton(QPixmap(u":/editicon.xpm"_s, "XPM"), QString(), frameWidget);
    editButton->setToolTip(tr("Edit the specified file"));
    editButton->setAccessibleName(tr("Edit") + u": "_s + caption);
    editButton->setEnabled(false);
    browseButton = new QPushButton(tr("&Browse..."), frameWidget);
    browseButton->setToolTip(tr("Browse the file directory structure to locate the required file"));
    findButton = new QPushButton(tr("&Find..."), frameWidget);
    findButton->setToolTip(tr("Perform a search on the file directory structure to locate the required file"));
    for (QPushButton* button : {browseButton, findButton}) {
        button->setAccessibleName(button->text().remove(u'&').remove(u"..."_s) + u": "_s + caption);
        button->setShortcut(QKeySequence());
    }
    for (QWidget* widget : std::initializer_list<QWidget*>{edit, editButton, browseButton, findButton}) {
        widget->installEventFilter(this);
    }
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
    if (options.withFind) {
        row->addWidget(findButton);
    } else {
        findButton->hide();
    }
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
    findButton->setVisible(!readOnly);
}

void SelectFileWidgets::ValChanged(const QString& text)
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
    const QString start = browseStart();
    QWidget* parent = MainWindow::current();
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
        MessageBox::warn(MainWindow::current(), tr("Edit failed"), tr("Can not edit file, the file does not exist"));
        return;
    }
    if (emitEditSignal) {
        Q_EMIT EditFile(name);
        return;
    }
    if (!DisplayDialog::showFile(*appRegistry, name, name)) {
        MessageBox::warn(MainWindow::current(), tr("Edit failed"), tr("Can not open file"));
    }
}

void SelectFileWidgets::FindAFile()
{
    if (!findDialog) {
        findDialog = std::make_unique<FindDialog>(appRegistry->values.installPath);
        findDialog->Setup(caption, filter);
    }
    findDialog->SetSearchStart(browseStart());
    findDialog->exec();
    takeChosen(findDialog->SelectedFile());
}

QString SelectFileWidgets::browseStart() const
{
    return edit->text().isEmpty() ? startFolder : edit->text();
}

// The shortcut is claimed before the window's own, then it arrives as a key press.
bool SelectFileWidgets::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(object, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    QPushButton* button = key->modifiers() == Qt::AltModifier ? buttonFor(key->key()) : nullptr;
    if (!button) {
        return QObject::eventFilter(object, event);
    }
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
    } else {
        button->animateClick();
    }
    return true;
}

QPushButton* SelectFileWidgets::buttonFor(int key) const
{
    for (QPushButton* button : {browseButton, findButton}) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(button->text());
        if (button->isVisible() && !mnemonic.isEmpty() && mnemonic[0].key() == key) {
            return button;
        }
    }
    return nullptr;
}

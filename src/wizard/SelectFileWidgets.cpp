// SPDX-License-Identifier: MIT
#include "wizard/SelectFileWidgets.h"
#include "app/AppRegistry.h"
#include "dialogs/Contrast.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/FindDialog.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "dialogs/XpmImage.h"
#include "wizard/FieldButton.h"
#include "wizard/PathEdit.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

/// Characters of a path that must be seen to recognise it.
constexpr int usableLength = 20;

} // namespace

SelectFileWidgets::SelectFileWidgets(const QString& fieldCaption, const QString& fileFilter, const Options& options)
    : emitEditSignal(options.emitEditSignal)
    , folderMode(!options.selectFiles)
    , frameWidget(options.inGroupBox ? static_cast<QWidget*>(new QGroupBox(fieldCaption)) : new QFrame)
    , caption(fieldCaption)
    , filter(fileFilter)
    , startFolder(options.startFolder)
    , folders(fieldCaption)
{
    historyCombo = new QComboBox(frameWidget);
    edit = new PathEdit(folderMode, frameWidget);
    // With several columns the buttons would take all the room.
    edit->setMinimumWidth(std::min(edit->fontMetrics().averageCharWidth() * usableLength,
                                   frameWidget->screen()->availableSize().width() / 4));
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

QLineEdit* SelectFileWidgets::lineEdit() const
{
    return edit;
}

void SelectFileWidgets::createButtons()
{
    editButton = new QPushButton(XpmImage::load(u":/editicon.xpm"_s), QString(), frameWidget);
    editButton->setToolTip(tr("Edit the specified file"));
    editButton->setAccessibleName(tr("Edit") + u": "_s + caption);
    editButton->setEnabled(false);
    browseButton = new FieldButton(tr("&Browse..."), frameWidget);
    browseButton->setToolTip(tr("Browse the file directory structure to locate the required file"));
    findButton = new FieldButton(tr("&Find..."), frameWidget);
    findButton->setToolTip(tr("Perform a search on the file directory structure to locate the required file"));
    for (QPushButton* button : {browseButton, findButton}) {
        button->setAccessibleName(button->text().remove(u'&').remove(u"..."_s) + u": "_s + caption);
        button->setShortcut(QKeySequence());
    }
    // A field without its buttons can still be looked into.
    viewAction = edit->addAction(editButton->icon(), QLineEdit::TrailingPosition);
    viewAction->setText(tr("Show the file"));
    viewAction->setShortcut(QKeySequence::Open);
    viewAction->setShortcutContext(Qt::WidgetShortcut);
    viewAction->setToolTip(viewAction->text() + u" ("_s + viewAction->shortcut().toString(QKeySequence::NativeText) +
                           u')');
    viewAction->setVisible(false);
    connect(viewAction, &QAction::triggered, this, qOverload<>(&SelectFileWidgets::EditFile));
    for (QWidget* widget : std::initializer_list<QWidget*>{edit, editButton, browseButton, findButton}) {
        widget->installEventFilter(this);
    }
}

void SelectFileWidgets::layOut(const Options& options)
{
    auto* column = new QVBoxLayout(frameWidget);
    auto* row = new QHBoxLayout;
    if (!options.inGroupBox) {
        column->setContentsMargins(0, 0, 0, 0);
    }
    column->addLayout(row);
    reasonLabel = new QLabel(frameWidget);
    reasonLabel->setTextFormat(Qt::PlainText);
    reasonLabel->setWordWrap(true);
    reasonLabel->hide();
    column->addWidget(reasonLabel);
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
    viewAction->setVisible(readOnly);
    updateLook();
    editButton->setVisible(!readOnly);
    browseButton->setVisible(!readOnly);
    findButton->setVisible(!readOnly);
}

void SelectFileWidgets::ValChanged(const QString& text)
{
    Q_EMIT ValueChanged(text);
    editButton->setEnabled(!text.isEmpty());
    valid = QFile::exists(text.trimmed());
    updateLook();
}

// Colour is never the only sign.
void SelectFileWidgets::updateLook()
{
    const QScopedValueRollback guard(updating, true);
    QPalette palette;
    if (edit->isReadOnly()) {
        palette.setBrush(QPalette::Base, palette.brush(QPalette::Window));
    }
    const QColor wrong = Contrast::alarm(palette.color(QPalette::Base));
    palette.setBrush(QPalette::All, edit->foregroundRole(), QBrush(valid ? normalColour : wrong));
    edit->setPalette(palette);
    edit->setAccessibleDescription(edit->fault());
    updateReason();
}

// While a path is being typed it is wrong all the time, which nobody needs to be told.
void SelectFileWidgets::updateReason()
{
    const QString text = edit->fault();
    reasonLabel->setText(text);
    reasonLabel->setVisible(!text.isEmpty() && (!edit->hasFocus() || !reasonLabel->isHidden()));
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
        folders.choose(folderMode ? path : QFileInfo(path).absolutePath());
        SetValue(path);
    }
}

void SelectFileWidgets::EditFile()
{
    const QString name = edit->text();
    const QString path = QDir::toNativeSeparators(QFileInfo(name).absoluteFilePath());
    if (!QFile::exists(name)) {
        MessageBox::warn(MainWindow::current(), tr("Edit failed"), tr("Can not edit file, the file does not exist"),
                         tr("%1\nCheck the name, or choose another file.").arg(path));
        return;
    }
    if (emitEditSignal) {
        Q_EMIT EditFile(name);
        return;
    }
    const Result<void> shown = DisplayDialog::showFile(*appRegistry, name, name);
    if (!shown.ok()) {
        MessageBox::warn(
            MainWindow::current(), tr("Edit failed"), tr("Can not open file"),
            tr("%1: %2\nChoose another file, or ask for the right to read this one.").arg(path, shown.problem));
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
    if (!edit->text().isEmpty()) {
        return edit->text();
    }
    const QString folder = folders.last();
    return folder.isEmpty() ? startFolder : folder;
}

void SelectFileWidgets::watchEdit(const QEvent& event)
{
    if (event.type() == QEvent::FocusOut) {
        // By then the focus has gone.
        QMetaObject::invokeMethod(this, &SelectFileWidgets::updateReason, Qt::QueuedConnection);
    } else if (event.type() == QEvent::PaletteChange && !updating) {
        normalColour = QApplication::palette(edit).color(edit->foregroundRole());
        updateLook();
    }
}

// The shortcut is claimed before the window's own, then it arrives as a key press.
bool SelectFileWidgets::eventFilter(QObject* object, QEvent* event)
{
    if (object == edit) {
        watchEdit(*event);
    }
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

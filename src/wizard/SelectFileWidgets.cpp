// SPDX-License-Identifier: MIT
#include "wizard/SelectFileWidgets.h"
#include "app/AppRegistry.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/FindDialog.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "wizard/FieldEdit.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>
#include <QUrl>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

/// Characters of a path that must be seen to recognise it.
constexpr int usableLength = 20;

/// Underlines its letter only while the shortcut works: with the focus in its own field.
class FieldButton : public QPushButton
{
public:
    FieldButton(const QString& text, QWidget* parent)
        : QPushButton(text, parent)
    {
        connect(qApp, &QApplication::focusChanged, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QStyleOptionButton option;
        initStyleOption(&option);
        const QWidget* focused = QApplication::focusWidget();
        if (!focused || !parentWidget()->isAncestorOf(focused)) {
            option.text.remove(u'&');
        }
        QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
    }
};

} // namespace

SelectFileWidgets::SelectFileWidgets(const QString& fieldCaption, const QString& fileFilter, const Options& options)
    : emitEditSignal(options.emitEditSignal)
    , folderMode(!options.selectFiles)
    , frameWidget(options.inGroupBox ? static_cast<QWidget*>(new QGroupBox(fieldCaption)) : new QFrame)
    , caption(fieldCaption)
    , filter(fileFilter)
    , startFolder(options.startFolder)
{
    historyCombo = new QComboBox(frameWidget);
    edit = new FieldEdit(frameWidget);
    // With several columns the buttons would take all the room.
    edit->setMinimumWidth(edit->fontMetrics().averageCharWidth() * usableLength);
    normalColour = edit->palette().brush(edit->foregroundRole()).color();
    createButtons();
    layOut(options);
    connect(edit, &QLineEdit::textChanged, this, &SelectFileWidgets::ValChanged);
    connect(edit, &QLineEdit::editingFinished, this, &SelectFileWidgets::takeForeignForm);
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
    browseButton = new FieldButton(tr("&Browse..."), frameWidget);
    browseButton->setToolTip(tr("Browse the file directory structure to locate the required file"));
    findButton = new FieldButton(tr("&Find..."), frameWidget);
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
    QPalette palette;
    palette.setBrush(QPalette::All, edit->foregroundRole(), QBrush(valid ? normalColour : QColor(Qt::red)));
    if (edit->isReadOnly()) {
        palette.setBrush(QPalette::Base, palette.brush(QPalette::Window));
    }
    edit->setPalette(palette);
    reason = valid || edit->text().isEmpty() ? QString() : tr("There is no file or folder of this name.");
    edit->setAccessibleDescription(reason);
}

// What a shell or a file manager calls a path.
void SelectFileWidgets::takeForeignForm()
{
    const QString text = edit->text().trimmed();
    const QUrl url(text, QUrl::StrictMode);
    if (text.startsWith("file://"_L1) && url.isLocalFile()) {
        edit->setText(QDir::toNativeSeparators(url.toLocalFile()));
    } else if (text == u'~' || text.startsWith("~/"_L1)) {
        edit->setText(QDir::toNativeSeparators(QDir::homePath() + text.mid(1)));
    }
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

// The tool tip goes on with what is wrong; a file that is dropped is its path.
bool SelectFileWidgets::editFilter(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !reason.isEmpty()) {
        const QString help = edit->toolTip();
        const QString line = Qt::mightBeRichText(help) ? u"<br>"_s : u"\n"_s;
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), help.isEmpty() ? reason : help + line + reason,
                           edit);
        return true;
    }
    if (event->type() != QEvent::Drop || edit->isReadOnly()) {
        return false;
    }
    const QList<QUrl> urls = static_cast<QDropEvent*>(event)->mimeData()->urls();
    if (urls.isEmpty() || !urls.first().isLocalFile()) {
        return false;
    }
    SetValue(urls.first().toLocalFile());
    return true;
}

// The shortcut is claimed before the window's own, then it arrives as a key press.
bool SelectFileWidgets::eventFilter(QObject* object, QEvent* event)
{
    if (object == edit && editFilter(event)) {
        return true;
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

// SPDX-License-Identifier: MIT
#include "dialogs/DisplayDialog.h"
#include "app/AppRegistry.h"
#include "dialogs/FindBar.h"
#include "dialogs/HtmlShape.h"
#include "dialogs/HtmlView.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "dialogs/TextPortions.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QUrl>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int fileWindowSize = 600;
// Enough to recognise a report by.
constexpr qsizetype shownBeginning = 4LL * 1024;

QString plainBeginning(const QString& html)
{
    const qsizetype tagEnd = html.lastIndexOf(u'>', std::min(shownBeginning, html.size()) - 1);
    const QString beginning = html.first(std::max<qsizetype>(tagEnd + 1, 0));
    return HtmlShape::of(beginning).isQuick() ? QTextDocumentFragment::fromHtml(beginning).toPlainText() : QString();
}

} // namespace

DisplayDialog::DisplayDialog(AppRegistry& owner, const QString& title, int displayMode, int width, int height,
                             QWidget* parent)
    : QDialog(parent)
    , registry(&owner)
    , mode(displayMode)
{
    setWindowFlags(MainWindow::frame());
    // It must not keep the program running once the wizard is gone.
    setAttribute(Qt::WA_QuitOnClose, false);
    registry->openDialogs += this;
    setWindowTitle(title);
    // Its title and its buttons have to stay on a small screen.
    const QSize frame(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    setMinimumSize(QSize(width, height).boundedTo(screen()->availableSize() - frame));
    setWindowIcon(MainWindow::icon());
    auto* grid = new QGridLayout(this);
    createView(*grid);
    createButtons(*grid);
}

DisplayDialog::~DisplayDialog()
{
    unlist();
}

void DisplayDialog::createView(QGridLayout& grid)
{
    if (mode == Html) {
        createBrowser(grid);
    } else if (mode == Text) {
        textView = new QPlainTextEdit;
        textView->setReadOnly(true);
        textView->setUndoRedoEnabled(false);
        textView->setLineWrapMode(QPlainTextEdit::NoWrap);
        textView->setAccessibleName(windowTitle());
        // What tools print stands in columns.
        textView->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        portions = new TextPortions(*textView, this);
        grid.addWidget(textView, 0, 0);
    } else {
        messageLabel = new QLabel;
        messageLabel->setTextFormat(Qt::PlainText);
        messageLabel->setWordWrap(true);
        messageLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        grid.addWidget(messageLabel, 0, 0);
    }
}

void DisplayDialog::createBrowser(QGridLayout& grid)
{
    auto* back = new QPushButton(tr("Back"));
    auto* forward = new QPushButton(tr("Forward"));
    htmlView = new HtmlView;
    htmlView->setAccessibleName(windowTitle());
    for (QPushButton* button : {back, forward}) {
        button->setEnabled(false);
        button->setAutoDefault(false);
    }
    grid.addWidget(back, 0, 0);
    grid.addWidget(forward, 0, 1);
    grid.addWidget(htmlView, 1, 0, 1, 2);
    connect(htmlView, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(htmlView, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
    connect(back, &QPushButton::clicked, htmlView, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, htmlView, &QTextBrowser::forward);
}

void DisplayDialog::createButtons(QGridLayout& grid)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal);
    printButton = buttons->addButton(tr("Print..."), QDialogButtonBox::ActionRole);
    printButton->setVisible(!messageLabel);
    printButton->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &DisplayDialog::Close);
    connect(printButton, &QPushButton::clicked, this, &DisplayDialog::Print);
    if (!messageLabel) {
        QPushButton* find = buttons->addButton(tr("&Find..."), QDialogButtonBox::ActionRole);
        find->setAutoDefault(false);
        find->setToolTip(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText));
        connect(find, &QPushButton::clicked, this, &DisplayDialog::openFindBar);
    }
    if (htmlView) {
        browserButton = buttons->addButton(tr("&Open in the browser"), QDialogButtonBox::ActionRole);
        browserButton->hide();
        connect(browserButton, &QPushButton::clicked, this, &DisplayDialog::openInBrowser);
    }
    // The row before is that of the find bar.
    grid.addWidget(buttons, htmlView ? 3 : 2, 0, 1, htmlView ? 2 : 1);
}

void DisplayDialog::openFindBar()
{
    if (!findBar) {
        const auto find = [this](const QString& words, QTextDocument::FindFlags flags) {
            return textView ? textView->find(words, flags) : htmlView->find(words, flags);
        };
        const auto move = [this](bool toEnd) {
            const QTextCursor::MoveOperation where = toEnd ? QTextCursor::End : QTextCursor::Start;
            textView ? textView->moveCursor(where) : htmlView->moveCursor(where);
        };
        findBar = new FindBar(find, move);
        if (portions) {
            findBar->setComplete(portions->isDone());
            connect(portions, &TextPortions::completed, findBar, [this] { findBar->setComplete(true); });
        }
        auto* grid = static_cast<QGridLayout*>(layout());
        grid->addWidget(findBar, htmlView ? 2 : 1, 0, 1, htmlView ? 2 : 1);
    }
    findBar->open();
}

void DisplayDialog::SetText(const QString& text)
{
    if (portions) {
        if (findBar) {
            findBar->setComplete(false);
        }
        portions->show(text);
    } else if (messageLabel) {
        messageLabel->setText(text);
    } else if (!HtmlShape::of(text).isQuick()) {
        offerBrowser(text);
    } else if (!LoadHtml(text)) {
        htmlView->setText(text);
    }
}

Result<void> DisplayDialog::showFile(AppRegistry& registry, const QString& title, const QString& fileName)
{
    if (!QFileInfo(fileName).isFile()) {
        return {tr("it is no file that holds text")};
    }
    auto file = std::make_unique<QFile>(fileName);
    if (!file->open(QIODevice::ReadWrite | QIODevice::Text | QIODevice::ExistingOnly) &&
        !file->open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {file->errorString()};
    }
    DisplayDialog dialog(registry, title, Text, fileWindowSize, fileWindowSize);
    dialog.portions->show(std::move(file));
    dialog.exec();
    return {};
}

// The byte order mark declares the encoding.
QString DisplayDialog::writeHtml(const QString& text, const QString& suffix)
{
    QFile file(registry ? registry->CreateTempFileName(suffix) : QString());
    if (file.fileName().isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return {};
    }
    const QByteArray bytes = "\xEF\xBB\xBF" + text.toUtf8();
    return file.write(bytes) == bytes.size() && file.flush() ? file.fileName() : QString();
}

// Through a file, so that relative links resolve and Back and Forward work.
bool DisplayDialog::LoadHtml(const QString& text)
{
    const QString file = writeHtml(text, {});
    if (file.isEmpty()) {
        return false;
    }
    htmlView->setSource(QUrl::fromLocalFile(file), QTextDocument::HtmlResource);
    return true;
}

void DisplayDialog::offerBrowser(const QString& text)
{
    if (wholeFile.isEmpty()) {
        wholeFile = writeHtml(text, u".html"_s);
    }
    const QString note = wholeFile.isEmpty()
                             ? tr("[This is only the beginning: the report is too long for this window, and no "
                                  "temporary file could be written for the browser]")
                             : tr("[This is only the beginning: the report is too long for this window. Until the "
                                  "wizard is closed it is in %1]")
                                   .arg(QDir::toNativeSeparators(wholeFile));
    const QString first = tr("[Only the beginning of the report is shown here]");
    htmlView->setPlainText(first + u"\n\n"_s + plainBeginning(text) + u"\n\n"_s + note);
    browserButton->setVisible(!wholeFile.isEmpty());
    // It would print the beginning only.
    printButton->setVisible(wholeFile.isEmpty());
    browserButton->setDefault(true);
    browserButton->setFocus();
}

void DisplayDialog::openInBrowser()
{
    // A browser may read the file when this program is gone.
    if (registry) {
        registry->tempFiles.keep(wholeFile);
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(wholeFile))) {
        MessageBox::warn(this, windowTitle(),
                         tr("No browser could be started. The report is in %1; open it with a program of your choice.")
                             .arg(QDir::toNativeSeparators(wholeFile)));
    }
}

void DisplayDialog::Print()
{
    QPrinter printer(QPrinter::ScreenResolution);
    QPrintDialog dialog(&printer, this);
    dialog.setPrintRange(QAbstractPrintDialog::AllPages);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    dialog.setWindowTitle(tr("Print Report"));
    dialog.adjustSize();
    if (dialog.exec() == QDialog::Accepted) {
        printTo(printer);
    }
}

void DisplayDialog::printTo(QPrinter& printer)
{
    if (textView) {
        portions->finish();
        textView->print(&printer);
    } else if (htmlView) {
        htmlView->print(&printer);
    }
}

void DisplayDialog::Close()
{
    unlist();
    done(QDialog::Rejected);
}

// Escape is the Close button, Ctrl+F asks for words to find; the frame's button only hides the window.
void DisplayDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel)) {
        Close();
        return;
    }
    if (event->matches(QKeySequence::Find) && !messageLabel) {
        openFindBar();
        return;
    }
    if (MainWindow::takesHelpKey(*event)) {
        return;
    }
    QDialog::keyPressEvent(event);
}

void DisplayDialog::unlist()
{
    if (registry) {
        registry->openDialogs.removeAll(this);
    }
}

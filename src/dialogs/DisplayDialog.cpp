// SPDX-License-Identifier: MIT
#include "dialogs/DisplayDialog.h"
#include "app/AppRegistry.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace {

constexpr qsizetype portionSize = 128LL * 1024;
// A view lays out a line as a whole; a longer one would stall it.
constexpr qsizetype longestLine = 10'000;
// What a window can still show with comfort.
constexpr qint64 largestShown = 64LL * 1024 * 1024;
constexpr int fileWindowSize = 600;

/// The end of the next portion: after a line break where there is one.
qsizetype portionEnd(const QString& text, qsizetype from, qsizetype size)
{
    if (text.size() - from <= size) {
        return text.size();
    }
    const qsizetype lineEnd = QStringView(text).sliced(from, size).lastIndexOf(u'\n');
    return lineEnd >= 0 ? from + lineEnd + 1 : from + size;
}

QString withShortLines(QStringView text)
{
    QString result;
    result.reserve(text.size());
    qsizetype lineLength = 0;
    for (const QChar character : text) {
        lineLength = character == u'\n' ? 0 : lineLength + 1;
        result += character;
        if (lineLength >= longestLine && !character.isHighSurrogate()) {
            result += u'\n';
            lineLength = 0;
        }
    }
    return result;
}

} // namespace

DisplayDialog::DisplayDialog(AppRegistry& owner, const QString& title, int displayMode, int width, int height,
                             QWidget* parent)
    : QDialog(parent)
    , registry(&owner)
    , mode(displayMode)
{
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowMaximizeButtonHint);
    // It must not keep the program running once the wizard is gone.
    setAttribute(Qt::WA_QuitOnClose, false);
    registry->openDialogs += this;
    setWindowTitle(title);
    setMinimumSize(width, height);
    auto* grid = new QGridLayout(this);
    createView(*grid);
    createButtons(*grid);
    connect(&portionTimer, &QTimer::timeout, this, &DisplayDialog::appendPortion);
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
    htmlView = new QTextBrowser;
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
    QPushButton* print = buttons->addButton(tr("Print..."), QDialogButtonBox::ActionRole);
    print->setVisible(!messageLabel);
    print->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &DisplayDialog::Close);
    connect(print, &QPushButton::clicked, this, &DisplayDialog::Print);
    grid.addWidget(buttons, htmlView ? 2 : 1, 0, 1, htmlView ? 2 : 1);
}

void DisplayDialog::SetText(const QString& text)
{
    if (textView) {
        textView->clear();
        pendingText = text;
        textPosition = 0;
        appendPortion();
        portionTimer.start(0);
    } else if (htmlView) {
        if (!LoadHtml(text)) {
            htmlView->setText(text);
        }
    } else {
        messageLabel->setText(text);
    }
}

bool DisplayDialog::showFile(AppRegistry& registry, const QString& title, const QString& fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() ||
        (!file.open(QIODevice::ReadWrite | QIODevice::Text | QIODevice::ExistingOnly) &&
         !file.open(QIODevice::ReadOnly | QIODevice::Text))) {
        return false;
    }
    QString text = QString::fromLocal8Bit(file.read(largestShown));
    if (!file.atEnd()) {
        text += u'\n' + tr("[The file is larger; only its beginning is shown]");
    }
    file.close();
    DisplayDialog dialog(registry, title, Text, fileWindowSize, fileWindowSize);
    dialog.SetText(text);
    dialog.exec();
    return true;
}

void DisplayDialog::appendPortion()
{
    if (textPosition >= pendingText.size()) {
        portionTimer.stop();
        pendingText.clear();
        textPosition = 0;
        return;
    }
    const qsizetype end = portionEnd(pendingText, textPosition, portionSize);
    QTextCursor cursor(textView->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(withShortLines(QStringView(pendingText).sliced(textPosition, end - textPosition)));
    textPosition = end;
}

// Through a file, so that relative links resolve and Back and Forward work. The byte order mark declares the encoding.
bool DisplayDialog::LoadHtml(const QString& text)
{
    QFile file(registry ? registry->CreateTempFileName({}) : QString());
    if (file.fileName().isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    const QByteArray bytes = "\xEF\xBB\xBF" + text.toUtf8();
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        return false;
    }
    file.close();
    htmlView->setSource(QUrl::fromLocalFile(file.fileName()), QTextDocument::HtmlResource);
    return true;
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
    while (textPosition < pendingText.size()) {
        appendPortion();
    }
    if (textView) {
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

// Escape is the Close button; the frame's button only hides the window.
void DisplayDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel)) {
        Close();
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

// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "definitions/PageData.h"
#include "dialogs/BusyDialog.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "dialogs/PlainText.h"
#include "process/RunAppData.h"

#include <QAction>
#include <QApplication>
#include <QDir>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// A quick tool needs no window that offers to stop it.
constexpr auto busyDelay = 700ms;
constexpr qsizetype keptErrors = 64LL * 1024;
// A window lays out each line; many short ones cost more than their bytes.
constexpr int shownLines = 500'000;
constexpr int windowWidth = 600;
constexpr int windowHeight = 600;
constexpr int messageHeight = 70;

// What a window of the mode can show without stalling.
qsizetype largestOutput(int displayMode)
{
    switch (displayMode) {
    case RunAppData::MessageDisplay:
        return 16LL * 1024;
    case RunAppData::HtmlDisplay:
        return 1024LL * 1024;
    default:
        return 16LL * 1024 * 1024;
    }
}

// The length of the first lines.
qsizetype lengthOfLines(const QByteArray& text, int lines)
{
    qsizetype end = 0;
    for (; lines > 0 && end < text.size(); --lines) {
        const qsizetype lineEnd = text.indexOf('\n', end);
        end = lineEnd < 0 ? text.size() : lineEnd + 1;
    }
    return end;
}

} // namespace

QString RunAppData::title() const
{
    return QString(name).replace(u'\n', u' ');
}

void RunAppData::clearOutput()
{
    output.clear();
    errors.clear();
    outputIsCut = false;
    outputLog.start({});
}

// Taken as it comes: a full pipe would stop the tool, and an endless one must not fill the memory.
void RunAppData::readOutput()
{
    const QByteArray bytes = process.readAllStandardOutput();
    if (displayMode == NoDisplay) {
        return;
    }
    if (outputIsCut) {
        outputLog.append(bytes);
        return;
    }
    output += bytes;
    if (output.size() > largestOutput(displayMode)) {
        cutOutput(largestOutput(displayMode));
    }
}

void RunAppData::cutOutput(qsizetype size)
{
    if (!outputIsCut) {
        outputIsCut = true;
        outputLog.start(appRegistry->CreateTempFileName(displayMode == HtmlDisplay ? u".html"_s : u".txt"_s));
        outputLog.append(output);
    }
    output.truncate(size);
    // What follows must not become part of a tag.
    if (const qsizetype tagEnd = output.lastIndexOf('>'); displayMode == HtmlDisplay && tagEnd >= 0) {
        output.truncate(tagEnd + 1);
    }
}

QString RunAppData::cutNote() const
{
    const QString file = QDir::toNativeSeparators(outputLog.fileName());
    if (file.isEmpty()) {
        return tr("[The output is longer than this and could not be kept]");
    }
    return (outputLog.isCut()
                ? tr("[The output is longer than this. Until the wizard is closed it is, without its end, in %1]")
                : tr("[The output is longer than this. Until the wizard is closed it is in %1]"))
        .arg(file);
}

void RunAppData::readErrors()
{
    errors += process.readAllStandardError();
    if (errors.size() > keptErrors) {
        errors = errors.last(keptErrors);
    }
}

bool RunAppData::showOutput()
{
    readOutput();
    if (output.isEmpty()) {
        MessageBox::warn(MainWindow::current(), title(), tr("No data returned from process"));
        return false;
    }
    if (const qsizetype size = lengthOfLines(output, shownLines); size < output.size()) {
        cutOutput(size);
    }
    outputLog.finish();
    QString text = QString::fromLocal8Bit(std::exchange(output, {}));
    if (outputIsCut) {
        text += displayMode == HtmlDisplay ? u"<p>"_s + cutNote().toHtmlEscaped() : u'\n' + cutNote();
    }
    auto* dialog = new DisplayDialog(title(), displayMode, windowWidth,
                                     displayMode == MessageDisplay ? messageHeight : windowHeight);
    // The window stays when it is closed; it goes with its launcher at the latest.
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    dialog->SetText(text);
    dialog->show();
    return true;
}

void RunAppData::showFailure()
{
    readErrors();
    QString text;
    switch (process.error()) {
    case QProcess::FailedToStart:
        text = tr("Failed to Start");
        break;
    case QProcess::Crashed:
        text = tr("Process Crashed");
        break;
    default:
        text = tr("Process Failed") + u" ["_s + QString::number(process.exitCode()) + u']';
    }
    QString details = process.error() == QProcess::UnknownError ? QString() : process.errorString() + u'\n';
    details =
        process.program() + u' ' + process.arguments().join(u' ') + u'\n' + details + QString::fromLocal8Bit(errors);
    MessageBox::warn(MainWindow::current(), title(), text, details);
}

void RunAppData::lockWindow(bool lock)
{
    if (lock == locked) {
        return;
    }
    locked = lock;
    if (lock) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        busyTimer.start(busyDelay);
    } else {
        QApplication::restoreOverrideCursor();
        busyTimer.stop();
        delete busyDialog;
    }
    if (QWidget* window = MainWindow::current()) {
        window->setEnabled(!lock);
    }
}

void RunAppData::markRunning(bool isRunning)
{
    if (!button) {
        return;
    }
    button->setText(isRunning ? title() + u'\n' + tr("running...") : name);
    stopAction->setVisible(isRunning);
    updateToolTip();
}

void RunAppData::enableButton(bool enabled)
{
    button->setEnabled(enabled);
    updateToolTip();
}

// A grey button says what it waits for.
void RunAppData::updateToolTip()
{
    QString text = disabledReason.isEmpty() ? description : disabledReason;
    if (stopAction->isVisible()) {
        text = tr("Running. Its context menu stops it.");
    } else if (page && disabledReason.isEmpty() && !button->isEnabled()) {
        const QStringList starters = page->StartersOf(this);
        if (!starters.isEmpty()) {
            const QString wait = tr("Available once this has succeeded: %1").arg(starters.join(u", "_s));
            text = text.isEmpty() ? wait : text + u'\n' + wait;
        }
    }
    button->setToolTip(PlainText::toolTip(text));
}

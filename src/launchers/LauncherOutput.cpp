// SPDX-License-Identifier: MIT
#include "launchers/LauncherOutput.h"
#include "process/OutputDecoder.h"

#include <QCoreApplication>
#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(LauncherOutput)
};

// A window lays out each line; many short ones cost more than their bytes.
int mostLines(int displayMode)
{
    return displayMode == MessageDisplay ? 30 : 500'000;
}

// What a window of the mode can show without stalling.
qsizetype largestOutput(int displayMode)
{
    switch (displayMode) {
    case MessageDisplay:
        return 4LL * 1024;
    case HtmlDisplay:
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

// Trimmed in steps: removing a little each time from the front would cost each time.
void appendTail(QByteArray& tail, const QByteArray& bytes, qsizetype kept)
{
    tail += bytes;
    if (tail.size() > 2 * kept) {
        tail = tail.last(kept);
    }
}

} // namespace

LauncherOutput::LauncherOutput(FileMaker fileMaker)
    : makeFile(std::move(fileMaker))
{
}

void LauncherOutput::start(int displayMode)
{
    mode = displayMode;
    output.clear();
    outputTail.clear();
    errorTail.clear();
    outputProgress.clear();
    errorProgress.clear();
    latest = {};
    isCut = false;
    log.start({});
}

bool LauncherOutput::append(const QByteArray& bytes)
{
    keep(bytes);
    appendTail(outputTail, bytes, keptEnd);
    return follow(outputProgress, bytes);
}

bool LauncherOutput::appendErrors(const QByteArray& bytes)
{
    appendTail(errorTail, bytes, keptEnd);
    return follow(errorProgress, bytes);
}

bool LauncherOutput::follow(ProgressLine& channel, const QByteArray& bytes)
{
    if (!channel.append(bytes)) {
        return false;
    }
    latest = channel.progress();
    return true;
}

// Taken as it comes: a full pipe would stop the tool, and an endless one must not fill the memory.
void LauncherOutput::keep(const QByteArray& bytes)
{
    if (mode == NoDisplay) {
        return;
    }
    if (isCut) {
        log.append(bytes);
        return;
    }
    output += bytes;
    if (output.size() > largestOutput(mode)) {
        cut(largestOutput(mode));
    }
}

QString LauncherOutput::takeText()
{
    if (const qsizetype size = lengthOfLines(output, mostLines(mode)); size < output.size()) {
        cut(size);
    }
    log.finish();
    QString text = OutputDecoder::text(std::exchange(output, {}));
    if (isCut) {
        text += mode == HtmlDisplay ? u"<p>"_s + cutNote().toHtmlEscaped() : u'\n' + cutNote();
    }
    return text;
}

void LauncherOutput::cut(qsizetype size)
{
    if (!isCut) {
        isCut = true;
        log.start(makeFile(mode == HtmlDisplay ? u".html"_s : u".txt"_s));
        log.append(output);
    }
    output.truncate(size);
    // What follows must not become part of a tag.
    if (const qsizetype tagEnd = output.lastIndexOf('>'); mode == HtmlDisplay && tagEnd >= 0) {
        output.truncate(tagEnd + 1);
    }
}

QString LauncherOutput::cutNote() const
{
    const QString file = QDir::toNativeSeparators(log.fileName());
    if (file.isEmpty()) {
        return Text::tr("[The output is longer than this and could not be kept]");
    }
    return (log.isCut()
                ? Text::tr("[The output is longer than this. Until the wizard is closed it is, without its end, in %1]")
                : Text::tr("[The output is longer than this. Until the wizard is closed it is in %1]"))
        .arg(file);
}

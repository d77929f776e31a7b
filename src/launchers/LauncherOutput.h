// SPDX-License-Identifier: MIT
#pragma once

#include "process/OutputLog.h"
#include "process/ProgressLine.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <functional>

/// How a launcher's output is shown, with the numbers that the suite uses.
enum DisplayMode { NoDisplay = 0, TextDisplay = 1, HtmlDisplay = 2, MessageDisplay = 3 };

/// What a launched tool prints: of its output as much as a window of the mode can show without stalling, the whole in a
/// temporary file once that is exceeded, the end of both channels, and how far the tool says it is on either.
class LauncherOutput
{
public:
    using FileMaker = std::function<QString(const QString& suffix)>;

    /// makeFile gives an empty file for an output that is too long to be kept here, or an empty text.
    explicit LauncherOutput(FileMaker fileMaker);

    /// Forgets what there was; what comes will be shown in this mode.
    void start(int displayMode);
    /// Takes output as it comes; without a display all but its end is thrown away. True when the progress is another
    /// now.
    bool append(const QByteArray& bytes);
    bool appendErrors(const QByteArray& bytes);

    bool isEmpty() const { return output.isEmpty(); }
    /// What a window shall show, with a note where the rest is; the output is empty afterwards.
    QString takeText();
    /// The file that holds the whole output, if it is longer than what a window shows and could be kept.
    QString wholeFile() const { return isCut && !log.isCut() ? log.fileName() : QString(); }
    /// The last of what came on each channel.
    QByteArray outputEnd() const { return outputTail.last(std::min(outputTail.size(), keptEnd)); }
    QByteArray errorOutput() const { return errorTail.last(std::min(errorTail.size(), keptEnd)); }
    const Progress& progress() const { return latest; }

private:
    static constexpr qsizetype keptEnd = 16LL * 1024;

    void keep(const QByteArray& bytes);
    bool follow(ProgressLine& channel, const QByteArray& bytes);
    void cut(qsizetype size);
    QString cutNote() const;

    FileMaker makeFile;
    int mode = NoDisplay;
    QByteArray output;
    bool isCut = false;
    OutputLog log;
    QByteArray outputTail;
    QByteArray errorTail;
    ProgressLine outputProgress;
    ProgressLine errorProgress;
    Progress latest;
};

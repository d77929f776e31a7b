// SPDX-License-Identifier: MIT
#pragma once

#include "process/OutputLog.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// How a launcher's output is shown, with the numbers that the suite uses.
enum DisplayMode { NoDisplay = 0, TextDisplay = 1, HtmlDisplay = 2, MessageDisplay = 3 };

/// What a launched tool prints: of its output as much as a window of the mode can show without stalling, the whole in a
/// temporary file once that is exceeded, and the end of its errors.
class LauncherOutput
{
public:
    using FileMaker = std::function<QString(const QString& suffix)>;

    /// makeFile gives an empty file for an output that is too long to be kept here, or an empty text.
    explicit LauncherOutput(FileMaker fileMaker);

    /// Forgets what there was; what comes will be shown in this mode.
    void start(int displayMode);
    /// Takes output as it comes. Without a display it is thrown away.
    void append(const QByteArray& bytes);
    void appendErrors(const QByteArray& bytes);

    bool isEmpty() const { return output.isEmpty(); }
    /// What a window shall show, with a note where the rest is; the output is empty afterwards.
    QString takeText();
    /// The last of what came as errors.
    const QByteArray& errorOutput() const { return errors; }

private:
    void cut(qsizetype size);
    QString cutNote() const;

    FileMaker makeFile;
    int mode = NoDisplay;
    QByteArray output;
    bool isCut = false;
    OutputLog log;
    QByteArray errors;
};

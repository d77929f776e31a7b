// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// The complete output of one run, in a temporary file. Stops growing at a size that no reader would miss.
class OutputLog
{
public:
    static constexpr qint64 largestSize = 256LL * 1024 * 1024;

    /// Starts a new log; without a name nothing is kept.
    void start(const QString& fileName);
    /// Adds output as it came.
    void append(const QByteArray& bytes);
    /// The last line, which stands in the log however long it is; may be empty.
    void endWith(const QString& line);
    void finish();
    /// Empty when nothing could be kept.
    QString fileName() const { return file.fileName(); }
    /// True when the log does not hold all: it is too long, or the disk is full.
    bool isCut() const { return cut; }

private:
    QFile file;
    bool cut = false;
    char lastByte = '\n';
};

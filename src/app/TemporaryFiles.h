// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The temporary files of this run: made empty, known by name, removed together.
class TemporaryFiles
{
public:
    TemporaryFiles() = default;
    ~TemporaryFiles();
    TemporaryFiles(const TemporaryFiles&) = delete;
    TemporaryFiles& operator=(const TemporaryFiles&) = delete;

    /// A new empty file whose name ends in the suffix, with a dot before it; an empty text when none can be made.
    QString create(const QString& suffix);
    const QStringList& names() const { return fileNames; }
    void removeAll();

private:
    QStringList fileNames;
};

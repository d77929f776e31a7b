// SPDX-License-Identifier: MIT
#pragma once

#include "CommandWords.h"

#include <QByteArray>

/// One object of a compilation database, as UTF-8; used again for the next.
struct DatabaseEntry
{
    QByteArray directory;
    QByteArray file;
    QByteArray output;
    QByteArray command;
    CommandWords arguments;
    bool hasArguments = false;
    qsizetype line = 0;

    /// What follows the last separator of either system.
    static QByteArrayView nameOf(QByteArrayView path);
    void clear();
    /// Whether Windows' rules for paths and words hold, told from the paths and the compiler.
    bool isWindows() const;
    /// Equal for entries that are compiled in the same way: everything but the names of the file and of what is made
    /// from it.
    size_t key() const;
    /// Where the object goes, if the entry says it; the command has to be divided. Points into the entry.
    QByteArrayView objectFile() const;

private:
    bool isFile(qsizetype i) const;
};

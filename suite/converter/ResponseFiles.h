// SPDX-License-Identifier: MIT
#pragma once

#include "CommandWords.h"

#include <QStringList>

/// Puts the words of @files in their place.
class ResponseFiles
{
public:
    /// Names count from the command's folder, also those inside other @files.
    ResponseFiles(QString folder, CommandWords::Rules fileRules, bool windowsPaths);

    QStringList expand(const QStringList& words);
    /// What could not be expanded and why; its words are missing.
    const QStringList& problems() const { return complaints; }

private:
    void take(const QString& word, QStringList& result);
    void takeFile(const QString& name, QStringList& result);
    QByteArray contents(const QString& path);

    QString directory;
    CommandWords::Rules rules;
    bool windows;
    QStringList open;
    QStringList complaints;
    qsizetype bytesLeft;
};

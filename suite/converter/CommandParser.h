// SPDX-License-Identifier: MIT
#pragma once

#include "BuildCommand.h"
#include "IncludeFolders.h"
#include "MacroList.h"
#include "OptionSpellings.h"
#include "ParsedCommand.h"

/// Turns the words of one command into what they mean for an analysis.
class CommandParser
{
public:
    explicit CommandParser(const BuildCommand& command);

    /// Defines and include folders beyond those of the command are taken as if they stood at its end.
    ParsedCommand parse(const QStringList& moreDefines, const QStringList& moreFolders);

private:
    /// True when the word was an option; takes the value behind it, too.
    bool takeOption(const QStringList& words, qsizetype& i);
    void take(const Spelling& spelling, const QString& word, const QString& value);
    void takePath(Meaning meaning, const QString& value);
    void takeLanguage(Meaning meaning, const QString& value);
    void takeMacro(Meaning meaning, const QString& word, const QString& value);
    void takeTarget(const Spelling& spelling, const QString& word, const QString& value);
    void takeOther(const QString& word);
    bool isOwnFile(const QString& word) const;
    void complain(const QString& option);
    void finishLanguage();
    void finishOptions();
    /// Where a forced include or a file of macros lies.
    QString headerPath(const QString& name) const;

    const BuildCommand& build;
    SourceLanguage byEnding;
    bool slashes = false;
    bool optionsEnded = false;
    MacroList macros;
    IncludeFolders folders;
    QStringList forcedIncludes;
    QStringList macroFiles;
    QString standard;
    bool ansi = false;
    SourceLanguage current = SourceLanguage::Unknown;
    SourceLanguage ofFile = SourceLanguage::Unknown;
    bool fileSeen = false;
    ParsedCommand result;
};

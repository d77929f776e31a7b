// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

/// What an option of a compiler is to an analysis.
enum class Meaning {
    Define,
    Undefine,
    Folder,
    QuoteFolder,
    SystemFolder,
    SystemFolderOfC,
    SystemFolderOfCpp,
    FolderBelowSysroot,
    AfterFolder,
    FoldersSoFarForQuotes,
    Prefix,
    AfterPrefix,
    FolderAtPrefix,
    ForcedInclude,
    MacroFile,
    Sysroot,
    HeaderSysroot,
    Language,
    Standard,
    Ansi,
    Target,         ///< kept as it is written
    TargetTriple,   ///< kept as --target=
    RuntimeLibrary, ///< brings macros of its own
    Exceptions,
    OpenMp,
    AllC,
    AllCpp,
    FileOfC,
    FileOfCpp,
    WorkingDirectory,
    OptionsEnd,    ///< what follows are files, or the linker's
    NoEffect,      ///< on what an analyser sees
    NoCounterpart, ///< in an options file
};

/// How an option takes its value.
enum class ValueForm {
    None,
    Joined,
    Separate,
    Either,
    Rest, ///< whatever follows in the same word
};

struct Spelling
{
    QStringView name;
    Meaning meaning;
    ValueForm form;
};

namespace OptionSpellings {

/// The option that a word is or begins with, the longest name first; null when it is none. The word includes its dash.
const Spelling* findDash(QStringView word);

/// The same for the options of MSVC and those that imitate it, which begin with a slash or a dash.
const Spelling* findSlash(QStringView word);

/// Whether the next word of a command is the value of this one.
bool takesNextWord(QStringView word);

} // namespace OptionSpellings

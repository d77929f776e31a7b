// SPDX-License-Identifier: MIT
#include "CommandParser.h"
#include "OptionWords.h"
#include "Paths.h"
#include "RuntimeMacros.h"
#include "StandardName.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

CommandParser::CommandParser(const BuildCommand& command)
    : build(command)
    , byEnding(languageOfFile(Paths::nameOf(command.file), command.windows))
    , folders(command.directory, command.windows)
{
}

ParsedCommand CommandParser::parse(const QStringList& moreDefines, const QStringList& moreFolders)
{
    const OptionWords command(build);
    result.compiler.program = command.compiler;
    result.compiler.family = command.family;
    result.compiler.windows = build.windows;
    result.problems = command.problems;
    slashes = CompilerName::hasSlashOptions(command.family);
    for (qsizetype i = 0; i < command.words.size(); ++i) {
        if (optionsEnded || !takeOption(command.words, i)) {
            takeOther(command.words[i]);
        }
    }
    for (const QString& define : moreDefines) {
        macros.define(define);
    }
    for (const QString& folder : moreFolders) {
        folders.take(Meaning::Folder, folder);
    }
    finishLanguage();
    finishOptions();
    return std::move(result);
}

bool CommandParser::takeOption(const QStringList& words, qsizetype& i)
{
    const QString& word = words[i];
    const bool dash = word.startsWith(u'-');
    if (word.size() < 2 || (!dash && !(slashes && word.startsWith(u'/') && !isOwnFile(word)))) {
        return false;
    }
    const Spelling* spelling = slashes ? OptionSpellings::findSlash(word) : nullptr;
    qsizetype length = spelling ? spelling->name.size() + 1 : 0;
    if (!spelling && dash) {
        spelling = OptionSpellings::findDash(word);
        length = spelling ? spelling->name.size() : 0;
    }
    if (!spelling) {
        return false;
    }
    QString value = word.sliced(length);
    const bool isNext =
        spelling->form == ValueForm::Separate || (spelling->form == ValueForm::Either && value.isEmpty());
    if (isNext) {
        if (i + 1 >= words.size()) {
            complain(word + u" (without a value)"_s);
            return true;
        }
        value = words[++i];
    }
    take(*spelling, word, value);
    return true;
}

void CommandParser::take(const Spelling& spelling, const QString& word, const QString& value)
{
    switch (spelling.meaning) {
    case Meaning::Define:
    case Meaning::Undefine:
    case Meaning::RuntimeLibrary:
    case Meaning::Exceptions:
    case Meaning::OpenMp:
        takeMacro(spelling.meaning, word, value);
        return;
    case Meaning::Language:
    case Meaning::Standard:
    case Meaning::Ansi:
    case Meaning::AllC:
    case Meaning::AllCpp:
    case Meaning::FileOfC:
    case Meaning::FileOfCpp:
        takeLanguage(spelling.meaning, value);
        return;
    case Meaning::Target:
    case Meaning::TargetTriple:
        takeTarget(spelling, word, value);
        return;
    case Meaning::OptionsEnd:
        optionsEnded = true;
        return;
    case Meaning::NoEffect:
        if (word.startsWith("-o"_L1) || spelling.name == "Fo"_L1) {
            result.output = value;
        }
        return;
    case Meaning::NoCounterpart:
        complain(word == value || word.endsWith(value) ? word : word + u' ' + value);
        return;
    default:
        takePath(spelling.meaning, value);
    }
}

void CommandParser::takePath(Meaning meaning, const QString& value)
{
    if (value.isEmpty() && meaning != Meaning::FoldersSoFarForQuotes) {
        return;
    }
    if (meaning == Meaning::ForcedInclude) {
        forcedIncludes += value;
    } else if (meaning == Meaning::MacroFile) {
        macroFiles += value;
    } else if (meaning == Meaning::FoldersSoFarForQuotes) {
        complain(u"-I- (that the folder of the source is not searched)"_s);
        folders.take(meaning, value);
    } else {
        folders.take(meaning, value);
    }
}

void CommandParser::takeLanguage(Meaning meaning, const QString& value)
{
    switch (meaning) {
    case Meaning::Language:
        current = languageOfName(value);
        break;
    case Meaning::Standard:
        standard = standardName(value);
        break;
    case Meaning::Ansi:
        ansi = true;
        break;
    case Meaning::AllC:
        current = SourceLanguage::C;
        break;
    case Meaning::AllCpp:
        current = SourceLanguage::Cpp;
        break;
    default:
        if (isOwnFile(value)) {
            ofFile = meaning == Meaning::FileOfC ? SourceLanguage::C : SourceLanguage::Cpp;
            fileSeen = true;
        }
    }
}

void CommandParser::takeMacro(Meaning meaning, const QString& word, const QString& value)
{
    const QStringView option = QStringView(word).sliced(1);
    if (meaning == Meaning::RuntimeLibrary) {
        for (const QString& macro : runtimeMacros(option)) {
            macros.defineIfUnknown(macro);
        }
    } else if (meaning == Meaning::Exceptions) {
        if (!value.contains(u'-') && !value.isEmpty()) {
            macros.defineIfUnknown(u"_CPPUNWIND=1"_s);
        }
    } else if (meaning == Meaning::OpenMp) {
        if (value != "-"_L1) {
            macros.defineIfUnknown(u"_OPENMP=200203"_s);
        }
    } else if (value.isEmpty() || value.startsWith(u'=')) {
        complain(word + u' ' + value + u" (no name)"_s);
    } else if (meaning == Meaning::Undefine) {
        macros.undefine(value);
    } else {
        QString define = value;
        const qsizetype hash = slashes ? define.indexOf(u'#') : -1;
        if (hash > 0 && !define.first(hash).contains(u'=')) {
            define[hash] = u'=';
        }
        macros.define(define);
    }
}

void CommandParser::takeTarget(const Spelling& spelling, const QString& word, const QString& value)
{
    if (spelling.meaning == Meaning::TargetTriple) {
        result.compiler.target += u"--target="_s + value;
    } else if (spelling.form == ValueForm::Separate) {
        result.compiler.target += word + u' ' + value;
    } else {
        result.compiler.target += word;
    }
}

// A word that is no option that is known: the source, an object or something new.
void CommandParser::takeOther(const QString& word)
{
    if (isOwnFile(word)) {
        ofFile = current;
        fileSeen = true;
    } else if (!optionsEnded && word.size() > 1 &&
               (word.startsWith(u'-') ||
                (slashes && word.startsWith(u'/') && !word.contains(u'.') && word.count(u'/') == 1))) {
        complain(word);
    }
}

bool CommandParser::isOwnFile(const QString& word) const
{
    return word == build.file ||
           (Paths::nameOf(word) == Paths::nameOf(build.file) &&
            folders.absolute(word) == Paths::absolute(build.directory, build.file, build.windows));
}

void CommandParser::complain(const QString& option)
{
    result.problems += option;
}

void CommandParser::finishLanguage()
{
    // /TC and /TP hold for all files, wherever they stand.
    SourceLanguage given = fileSeen && !(slashes && ofFile == SourceLanguage::Unknown) ? ofFile : current;
    if (given == SourceLanguage::Unknown && byEnding == SourceLanguage::C &&
        CompilerName::isForCppOnly(result.compiler.program)) {
        given = SourceLanguage::Cpp;
    }
    // What ends like a header is compiled for its syntax or in advance.
    const bool isHeader = byEnding == SourceLanguage::Header && isSource(given);
    result.language = given == SourceLanguage::Unknown || isHeader ? byEnding : given;
    const bool isKnown = result.language == SourceLanguage::C || result.language == SourceLanguage::Cpp;
    if (isKnown && result.language != byEnding) {
        result.options += {OptionKind::Language, result.language == SourceLanguage::C ? u"c"_s : u"c++"_s};
    }
    result.compiler.isC = result.language == SourceLanguage::C;
    if (ansi && standard.isEmpty()) {
        standard = result.compiler.isC ? u"c90"_s : u"c++98"_s;
    }
    // Compilers pass over a standard of the other language, too.
    if (standard.contains("++"_L1) == result.compiler.isC) {
        standard.clear();
    }
    result.compiler.standard = standard;
}

void CommandParser::finishOptions()
{
    if (!folders.sysroot().isEmpty()) {
        result.compiler.target += u"--sysroot="_s + folders.sysroot();
    }
    if (!standard.isEmpty()) {
        result.options += {OptionKind::Standard, standard};
    }
    for (const QString& word : std::as_const(result.compiler.target)) {
        result.options += {OptionKind::Target, word};
    }
    macros.appendTo(result.options);
    result.options += folders.options(result.compiler.isC);
    for (const QString& file : std::as_const(macroFiles)) {
        result.options += {OptionKind::MacroFile, headerPath(file)};
    }
    for (const QString& file : std::as_const(forcedIncludes)) {
        result.options += {OptionKind::ForcedInclude, headerPath(file)};
    }
}

// Looked for like any other header, but from the folder of the command.
QString CommandParser::headerPath(const QString& name) const
{
    QString here = folders.absolute(name);
    if (here == name || QFileInfo(here).isFile()) {
        return here;
    }
    for (const Option& folder : folders.options(result.compiler.isC)) {
        QString path = Paths::absolute(folder.text, name, build.windows);
        if (QFileInfo(path).isFile()) {
            return path;
        }
    }
    return here;
}

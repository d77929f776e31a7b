// SPDX-License-Identifier: MIT
#include "OptionWords.h"
#include "ResponseFiles.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

CommandWords::Rules fileRules(CompilerName::Family family, bool windows)
{
    const bool isWindowsProgram =
        CompilerName::hasSlashOptions(family) || (windows && family == CompilerName::Family::Clang);
    return isWindowsProgram ? CommandWords::Rules::Windows : CommandWords::Rules::ResponseFile;
}

bool isOperator(const QString& word)
{
    return word == "&&"_L1 || word == "||"_L1 || word == ";"_L1 || word == "|"_L1;
}

// Of several commands in a row the one that compiles.
QStringList compilation(const QStringList& words, QStringList& problems)
{
    auto begin = words.cbegin();
    while (begin != words.cend()) {
        const auto end = std::find_if(begin, words.cend(), isOperator);
        const QStringList one(begin, end);
        if (one.size() == words.size()) {
            break;
        }
        if (CompilerName::family(one.value(CompilerName::find(one))) != CompilerName::Family::Other) {
            return one;
        }
        if (one.value(0) == "cd"_L1) {
            problems += one.join(u' ') + u" (that the command changes its folder)"_s;
        }
        begin = end == words.cend() ? end : end + 1;
    }
    return words;
}

// A shell gets its command in one piece, and so does cmd.exe.
QStringList programWords(const BuildCommand& command, QStringList& problems)
{
    const QStringList words = compilation(command.arguments, problems);
    const qsizetype at = CompilerName::find(words);
    const bool isOneText = at > 0 && at < words.size() && words[at].contains(u' ');
    const bool inShell = isOneText && words[at - 1] == "-c"_L1;
    if (inShell || (isOneText && at + 1 == words.size() && command.windows)) {
        CommandWords text;
        text.split(words[at].toUtf8(), inShell ? CommandWords::Rules::Shell : CommandWords::Rules::Windows);
        const QStringList inner = compilation(text.texts(), problems);
        return inner.mid(CompilerName::find(inner));
    }
    return words.mid(at);
}

} // namespace

OptionWords::OptionWords(const BuildCommand& command)
{
    QStringList rest = programWords(command, problems);
    if (!rest.isEmpty() && !rest.first().startsWith(u'-')) {
        compiler = rest.takeFirst();
        family = CompilerName::family(compiler);
    }
    if (family == CompilerName::Family::Clang && rest.contains(u"--driver-mode=cl"_s)) {
        family = CompilerName::Family::ClangCl;
    }
    ResponseFiles files(command.directory, fileRules(family, command.windows), command.windows);
    unwrap(files.expand(rest));
    problems += files.problems();
}

void OptionWords::unwrap(const QStringList& wrapped)
{
    for (qsizetype i = 0; i < wrapped.size(); ++i) {
        const QString& word = wrapped[i];
        if ((word == "-Xclang"_L1 || word == "-Xpreprocessor"_L1) && i + 1 < wrapped.size()) {
            words += wrapped[++i];
        } else if (word.startsWith("-Wp,"_L1)) {
            words += word.sliced(4).split(u',', Qt::SkipEmptyParts);
        } else if (word.startsWith("/clang:"_L1) || word.startsWith("-clang:"_L1)) {
            words += word.sliced(7);
        } else {
            words += word;
        }
    }
}

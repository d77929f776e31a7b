// SPDX-License-Identifier: MIT
#include "OptionWords.h"
#include "ResponseFiles.h"

using namespace Qt::StringLiterals;

namespace {

CommandWords::Rules fileRules(CompilerName::Family family, bool windows)
{
    const bool isWindowsProgram =
        CompilerName::hasSlashOptions(family) || (windows && family == CompilerName::Family::Clang);
    return isWindowsProgram ? CommandWords::Rules::Windows : CommandWords::Rules::ResponseFile;
}

// cmd.exe gets its command in one piece.
QStringList programWords(const BuildCommand& command)
{
    const qsizetype at = CompilerName::find(command.arguments);
    if (at > 0 && at + 1 == command.arguments.size() && command.arguments[at].contains(u' ') && command.windows) {
        CommandWords words;
        words.split(command.arguments[at].toUtf8(), CommandWords::Rules::Windows);
        const QStringList inner = words.texts();
        return inner.mid(CompilerName::find(inner));
    }
    return command.arguments.mid(at);
}

} // namespace

OptionWords::OptionWords(const BuildCommand& command)
{
    QStringList rest = programWords(command);
    if (!rest.isEmpty() && !rest.first().startsWith(u'-')) {
        compiler = rest.takeFirst();
        family = CompilerName::family(compiler);
    }
    if (family == CompilerName::Family::Clang && rest.contains(u"--driver-mode=cl"_s)) {
        family = CompilerName::Family::ClangCl;
    }
    ResponseFiles files(command.directory, fileRules(family, command.windows), command.windows);
    unwrap(files.expand(rest));
    problems = files.problems();
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

// SPDX-License-Identifier: MIT
#include "Summary.h"
#include "Arguments.h"
#include "Counted.h"
#include "Output.h"
#include "ProjectSources.h"
#include "ProjectTree.h"
#include "ProjectWriter.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostLines = 10;

void say(const QString& text)
{
    print(stdout, text);
}

void printCompilers(const QHash<int, CompilerPersonality>& compilers)
{
    QSet<QString> told;
    for (const CompilerPersonality& compiler : compilers) {
        const QString name = compiler.setup.program;
        const QString text =
            compiler.program.isEmpty()
                ? u"%1 is not asked for its macros: %2; the most usual ones are taken"_s.arg(name, compiler.reason)
                : u"%1 was asked for its macros"_s.arg(name);
        if (told.size() < mostLines && !told.contains(text)) {
            told.insert(text);
            say(text);
        }
    }
}

} // namespace

void Summary::print(const ProjectTree& tree, const QHash<int, CompilerPersonality>& compilers,
                    const WrittenProject& written) const
{
    printFiles();
    printCompilers(compilers);
    printLog(written);
    for (const QString& file : written.unusedFiles.mid(0, mostLines)) {
        say(u"warning: nothing uses %1 any more, but it holds options of yours"_s.arg(file));
    }
    printTotals(tree);
}

void Summary::printFiles() const
{
    if (kept.duplicates > 0) {
        say(u"%1 listed more than once"_s.arg(counted(kept.duplicates, u"file is"_s, u"files are"_s)));
    }
    for (auto kind = kept.noSources.cbegin(); kind != kept.noSources.cend(); ++kind) {
        const QString name = nameOf(kind.key());
        say(u"%1 left out: no C or C++ source"_s.arg(counted(kind.value(), name + u" is"_s, name + u"s are"_s)));
    }
    if (kept.otherLanguage > 0) {
        say(u"%1 left out: another language"_s.arg(counted(kept.otherLanguage, u"file is"_s, u"files are"_s)));
    }
    if (kept.leftOut > 0) {
        say(u"%1 left out by the patterns"_s.arg(counted(kept.leftOut, u"file is"_s, u"files are"_s)));
    }
    if (kept.missing > 0) {
        const QString number = arguments.keepMissing
                                   ? counted(kept.missing, u"file does not exist"_s, u"files do not exist"_s)
                                   : counted(kept.missing, u"file does not exist and is left out"_s,
                                             u"files do not exist and are left out"_s);
        say(u"warning: %1, the first is %2"_s.arg(number, kept.firstMissing));
    }
}

void Summary::printLog(const WrittenProject& written) const
{
    QList<ConversionLog::Entry> entries = sources.log.entries();
    entries.removeIf([](const ConversionLog::Entry& entry) { return entry.count == 0; });
    std::ranges::stable_sort(entries, std::greater(), &ConversionLog::Entry::count);
    for (const ConversionLog::Entry& entry : entries.mid(0, mostLines)) {
        say(u"warning: left out: %1, in %2, the first is %3"_s.arg(entry.text, counted(entry.count, u"place"_s),
                                                                   entry.places.value(0)));
    }
    if (!written.logFile.isEmpty()) {
        say(u"All that is left out is listed in %1"_s.arg(written.logFile));
    }
}

void Summary::printTotals(const ProjectTree& tree) const
{
    QSet<int> sets;
    for (const qsizetype unit : kept.units) {
        sets.insert(sources.settingsOf(sources.units[unit]).options);
    }
    QSet<QString> folders;
    QSet<QString> defines;
    for (const int set : std::as_const(sets)) {
        for (const quint32 number : sources.pool.set(set)) {
            const Option& option = sources.pool.option(number);
            if (option.kind == OptionKind::Define) {
                defines.insert(option.text);
            } else if (option.kind >= OptionKind::QuoteFolder && option.kind <= OptionKind::AfterFolder) {
                folders.insert(option.text);
            }
        }
    }
    say(u"Project %1: %2"_s.arg(
        tree.root.name,
        QStringList{counted(tree.fileCount(), u"source file"_s), counted(tree.parts.size(), u"sub-project"_s),
                    counted(sets.size(), u"set of options"_s, u"sets of options"_s),
                    counted(folders.size(), u"include folder"_s), counted(defines.size(), u"define"_s)}
            .join(u", "_s)));
}

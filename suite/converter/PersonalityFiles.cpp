// SPDX-License-Identifier: MIT
#include "PersonalityFiles.h"
#include "Arguments.h"
#include "FileSet.h"
#include "OptionsText.h"
#include "OwnedFile.h"
#include "SharedOptions.h"
#include "ShortHash.h"
#include "Sources.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString orDefault(const QString& personality)
{
    return personality.isEmpty() ? u"default string"_s : personality;
}

} // namespace

PersonalityFiles::PersonalityFiles(const Arguments& wanted, const Sources& from,
                                   const QHash<int, CompilerPersonality>& answers)
    : arguments(wanted)
    , sources(from)
    , compilers(answers)
{
    const QFileInfo project(arguments.output);
    place = project.absolutePath() + u'/' + project.completeBaseName() + u".options"_s;
}

void PersonalityFiles::add(const ProjectTree& tree, FileSet& files)
{
    addRoot(tree, files);
    if (tree.root.compiler >= 0) {
        addCompiler(tree.root.compiler, files);
    }
    for (const ProjectTree::Node& part : tree.parts) {
        if (part.options >= 0 && !optionFiles.contains(part.options)) {
            addOptions(part, tree, files);
        }
        if (part.compiler >= 0) {
            addCompiler(part.compiler, files);
        }
    }
}

void PersonalityFiles::addRoot(const ProjectTree& tree, FileSet& files)
{
    const QString path = place + u".p_a"_s;
    const bool isNeeded = !tree.shared.isEmpty() || !OwnedFile::userPart(path).trimmed().isEmpty() ||
                          std::ranges::any_of(tree.parts, [](const auto& part) { return part.options >= 0; });
    if (!isNeeded) {
        return;
    }
    rootFile = path;
    const QString text = OptionsText::via(arguments.analyserPersonality) + database() +
                         OptionsText::lines(sources.pool, tree.shared, arguments.forC);
    files.add(path, OwnedFile::contents(path, text));
    rootMark = shortHash(text);
}

QString PersonalityFiles::database() const
{
    return sources.description.isEmpty()
               ? QString()
               : u"*orv database=\"%1\"\n"_s.arg(QDir::toNativeSeparators(sources.description));
}

void PersonalityFiles::addOptions(const ProjectTree::Node& part, const ProjectTree& tree, FileSet& files)
{
    static const QRegularExpression odd(u"[^A-Za-z0-9._-]"_s);
    const QString text = OptionsText::lines(
        sources.pool, SharedOptions::rest(sources.pool.set(part.options), tree.shared), arguments.forC);
    QString label = part.outputSubFolder.section(u'~', 0, 0);
    label = (label.isEmpty() ? arguments.name : label).right(40).replace(odd, u"_"_s);
    const QString path = place + u'/' + label + u'~' + shortHash(text) + u".p_a"_s;
    // Whoever looks at times sees that what is shared has changed.
    const QString head = OptionsText::via(rootFile) + u"* What all share has the mark %1\n"_s.arg(rootMark);
    files.addNew(path, OwnedFile::contents(path, head + text));
    optionFiles.insert(part.options, path);
}

void PersonalityFiles::addCompiler(int compiler, FileSet& files)
{
    const auto known = compilers.constFind(compiler);
    if (known == compilers.cend() || compilerFiles.contains(compiler)) {
        return;
    }
    const QString text = known->text();
    const QString path = place + u'/' + known->label() + u'~' + shortHash(text) + u".p_c"_s;
    files.addNew(path, OwnedFile::contents(path, OptionsText::via(arguments.compilerPersonality) + text));
    compilerFiles.insert(compiler, path);
}

QString PersonalityFiles::rootAnalyser() const
{
    return orDefault(rootFile.isEmpty() ? arguments.analyserPersonality : rootFile);
}

QString PersonalityFiles::rootCompiler(const ProjectTree& tree) const
{
    return orDefault(compilerFiles.value(tree.root.compiler, arguments.compilerPersonality));
}

QString PersonalityFiles::analyserOf(const ProjectTree::Node& part) const
{
    return part.options < 0 ? u"inherit string"_s : optionFiles.value(part.options);
}

QString PersonalityFiles::compilerOf(const ProjectTree::Node& part) const
{
    return compilerFiles.value(part.compiler, u"inherit string"_s);
}

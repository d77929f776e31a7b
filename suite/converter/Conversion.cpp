// SPDX-License-Identifier: MIT
#include "Conversion.h"
#include "Arguments.h"
#include "builds/BuildReader.h"
#include "CompileDatabase.h"
#include "CompilerQuery.h"
#include "Output.h"
#include "PathFilter.h"
#include "Paths.h"
#include "ProjectSources.h"
#include "ProjectTree.h"
#include "ProjectWriter.h"
#include "SourceCollector.h"
#include "SourceLists.h"
#include "Summary.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void readDatabase(const Arguments& arguments, SourceCollector& collector)
{
    QStringList others;
    const QString database = CompileDatabase::find(arguments.compileCommands, others);
    print(stdout, u"Reading "_s + database);
    if (!others.isEmpty()) {
        print(stdout, u"%1 further databases are not read, the first is %2"_s.arg(others.size()).arg(others.first()));
    }
    collector.setDescription(QFileInfo(database).absoluteFilePath());
    CompileDatabase::read(database, collector);
}

void readSources(const Arguments& arguments, SourceCollector& collector)
{
    if (!arguments.compileCommands.isEmpty()) {
        readDatabase(arguments, collector);
    } else if (!arguments.sourceFolder.isEmpty()) {
        print(stdout, u"Searching "_s + arguments.sourceFolder);
        const QStringList usual = arguments.forC ? QStringList{u"c"_s} : usualCppEndings();
        scanFolder(arguments.sourceFolder, arguments.extensions.isEmpty() ? usual : arguments.extensions,
                   PathFilter(arguments.exclude), collector);
    } else if (arguments.build.count() > 0) {
        readBuild(arguments.build, arguments.output, collector);
    } else {
        print(stdout, u"Reading "_s + arguments.fileList);
        readFileList(arguments.fileList, collector);
    }
}

// Only those of sources that have become part of the project.
QHash<int, CompilerPersonality> askCompilers(const Sources& sources, const ProjectSources& kept)
{
    QList<int> numbers;
    for (const qsizetype unit : kept.units) {
        const int compiler = sources.settingsOf(sources.units[unit]).compiler;
        if (compiler >= 0 && !numbers.contains(compiler)) {
            numbers += compiler;
        }
    }
    QList<CompilerSetup> setups;
    for (const int number : std::as_const(numbers)) {
        setups += sources.compilers[number];
    }
    QStringList distrusted{kept.commonFolder};
    if (!sources.description.isEmpty()) {
        distrusted += QFileInfo(sources.description).absolutePath();
    }
    const QList<CompilerPersonality> answers = CompilerQuery(distrusted).ask(setups);
    QHash<int, CompilerPersonality> result;
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        result.insert(numbers[i], answers[i]);
    }
    return result;
}

} // namespace

void convert(const Arguments& arguments)
{
    SourceCollector collector(arguments);
    readSources(arguments, collector);
    const Sources sources = collector.take();
    const ProjectSources kept = ProjectSources::choose(sources, arguments);
    const ProjectTree tree = ProjectTree::build(sources, kept, arguments);
    const QHash<int, CompilerPersonality> compilers = askCompilers(sources, kept);
    const WrittenProject written = writeProject(tree, sources, compilers, arguments);
    Summary(sources, kept, arguments).print(tree, compilers, written);
}

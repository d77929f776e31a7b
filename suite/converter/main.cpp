// SPDX-License-Identifier: MIT
#include "Arguments.h"
#include "CompileDatabase.h"
#include "Failure.h"
#include "ProjectTree.h"
#include "ProjectWriter.h"
#include "SourceLists.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void print(std::FILE* channel, const QString& text)
{
    std::fputs((text + u'\n').toLocal8Bit().constData(), channel);
    std::fflush(channel);
}

SourceUnits readSources(const Arguments& arguments)
{
    if (!arguments.compileCommands.isEmpty()) {
        print(stdout, u"Reading "_s + arguments.compileCommands);
        return readCompileDatabase(arguments.compileCommands);
    }
    if (!arguments.sourceFolder.isEmpty()) {
        print(stdout, u"Searching "_s + arguments.sourceFolder);
        const QStringList usual =
            arguments.forC ? QStringList{u"c"_s} : QStringList{u"cpp"_s, u"cc"_s, u"cxx"_s, u"c"_s};
        QStringList unreadable;
        SourceUnits units =
            scanFolder(arguments.sourceFolder, arguments.extensions.isEmpty() ? usual : arguments.extensions,
                       arguments.exclude, unreadable);
        for (const QString& folder : std::as_const(unreadable)) {
            print(stdout, u"warning: %1 may not be read and is left out"_s.arg(folder));
        }
        return units;
    }
    print(stdout, u"Reading "_s + arguments.fileList);
    return readFileList(arguments.fileList);
}

void summarise(const ProjectTree& tree, const Arguments& arguments)
{
    if (tree.duplicates > 0) {
        print(stdout, u"%1 files are listed more than once"_s.arg(tree.duplicates));
    }
    if (tree.otherLanguage > 0) {
        print(stdout, u"%1 files are left out: another language"_s.arg(tree.otherLanguage));
    }
    if (!tree.missing.isEmpty()) {
        print(stdout, u"warning: %1 files do not exist%2, the first is %3"_s.arg(tree.missing.size())
                          .arg(arguments.keepMissing ? u""_s : u" and are left out"_s, tree.missing.first()));
    }
    print(stdout, u"Project %1: %2 source files, %3 sub-projects, %4 include folders, %5 defines"_s.arg(tree.root.name)
                      .arg(tree.fileCount())
                      .arg(tree.subProjects.size())
                      .arg(tree.includeFolders.size())
                      .arg(tree.defines.size()));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"prjconv"_s);
    QCoreApplication::setApplicationVersion(u"1.0"_s);
    try {
        const Arguments arguments = Arguments::parse(QCoreApplication::arguments());
        const ProjectTree tree = ProjectTree::build(readSources(arguments), arguments);
        writeProject(tree, arguments);
        summarise(tree, arguments);
        return 0;
    } catch (const Failure& failure) {
        print(stderr, u"prjconv: "_s + failure.text);
        return int(failure.kind);
    }
}

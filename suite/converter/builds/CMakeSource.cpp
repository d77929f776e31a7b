// SPDX-License-Identifier: MIT
#include "CMakeSource.h"
#include "../CommandWords.h"
#include "../Failure.h"
#include "BuildRun.h"
#include "OwnFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QStringList ownWords(const QString& options)
{
    CommandWords words;
    if (!words.split(options.toUtf8(), CommandWords::Rules::Shell)) {
        throw Failure{u"a quote is not closed in the options for cmake: %1"_s.arg(options)};
    }
    QStringList result = words.texts();
    for (const QString& word : std::as_const(result)) {
        if (word.startsWith("-B"_L1) || word.startsWith("-S"_L1)) {
            throw Failure{u"%1: the source folder has its own field, and the build folder is the converter's. Take the "
                          "option out."_s.arg(word)};
        }
    }
    return result;
}

bool choosesGenerator(const QStringList& words)
{
    return std::ranges::any_of(
        words, [](const QString& word) { return word.startsWith("-G"_L1) || word.startsWith("--preset"_L1); });
}

} // namespace

QString configureCMake(const QString& sourceFolder, const QString& options, const QString& projectFile)
{
    const QString source = QFileInfo(sourceFolder).absoluteFilePath();
    if (!QFileInfo(source + u"/CMakeLists.txt"_s).isFile()) {
        throw Failure{u"%1: has no CMakeLists.txt. Name the top folder of the sources."_s.arg(source)};
    }
    const QStringList more = ownWords(options);
    BuildRun::require(u"cmake"_s, u"cmake"_s);
    const OwnFolder folder(projectFile, u"cmake"_s);
    QString database = folder.file(u"compile_commands.json"_s);
    // What an earlier configuration decided must not last.
    QFile::remove(folder.file(u"CMakeCache.txt"_s));
    QDir(folder.file(u"CMakeFiles"_s)).removeRecursively();
    QFile::remove(database);

    QStringList arguments{u"-S"_s, source, u"-B"_s, folder.name(), u"-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"_s};
    if (!choosesGenerator(more)) {
        const bool hasNinja = !QStandardPaths::findExecutable(u"ninja"_s).isEmpty();
        arguments += {u"-G"_s, hasNinja ? u"Ninja"_s : u"Unix Makefiles"_s};
    }
    BuildRun run(u"cmake"_s, arguments + more);
    run.setFolder(source);
    if (!run.run()) {
        folder.discard();
        throw Failure{u"stopped while cmake configured %1; no project was written."_s.arg(source)};
    }
    if (const QString problem = run.problem(); !problem.isEmpty()) {
        throw Failure{u"%1: can not be configured: %2"_s.arg(source, problem)};
    }
    if (!QFileInfo(database).isFile()) {
        throw Failure{u"%1: cmake has written no compile_commands.json: nothing is compiled there, or the chosen "
                      "generator does not write it (Ninja and Unix Makefiles do)."_s.arg(source)};
    }
    return database;
}

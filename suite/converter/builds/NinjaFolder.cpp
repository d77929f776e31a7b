// SPDX-License-Identifier: MIT
#include "NinjaFolder.h"
#include "../Failure.h"
#include "BuildRun.h"
#include "OwnFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

// Ninja lists all that it runs: links, tests, and scripts that happen to read a source.
bool isCompilation(const QString& command)
{
    static const QRegularExpression compile(u"\\s[-/]c\\s"_s);
    static const QRegularExpression script(u"\\b(?:sh|bash|dash|python[\\d.]*|perl)[\"']?\\s+-c\\s"_s);
    return compile.match(command).hasMatch() && !script.match(command).hasMatch();
}

QJsonArray compilationsIn(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Failure{u"%1: can not be read (%2)."_s.arg(fileName, file.errorString())};
    }
    QJsonParseError error;
    const QJsonArray all = QJsonDocument::fromJson(file.readAll(), &error).array();
    if (error.error != QJsonParseError::NoError) {
        throw Failure{u"%1: what ninja lists can not be read: %2."_s.arg(fileName, error.errorString())};
    }
    QJsonArray compilations;
    for (const auto& entry : all) {
        if (isCompilation(entry["command"_L1].toString())) {
            compilations += entry;
        }
    }
    return compilations;
}

void write(const QJsonArray& entries, const QString& fileName)
{
    QSaveFile file(fileName);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(entries).toJson()) >= 0 && file.flush();
    const QString reason = file.errorString();
    if (!isWritten || !file.commit()) {
        throw Failure{u"%1: can not be written (%2)."_s.arg(fileName, reason)};
    }
}

} // namespace

bool isNinjaFolder(const QString& folder)
{
    return QFileInfo(folder + u"/build.ninja"_s).isFile();
}

QString describeNinja(const QString& folder, const QString& projectFile)
{
    const QString place = QFileInfo(folder).absoluteFilePath();
    if (!isNinjaFolder(place)) {
        if (QFileInfo(place + u"/CMakeCache.txt"_s).isFile()) {
            throw Failure{u"%1: cmake has not written down the commands of the build here. Run "
                          "\"cmake -DCMAKE_EXPORT_COMPILE_COMMANDS=ON %1\" and convert again."_s.arg(place)};
        }
        throw Failure{
            u"%1: has neither a compile_commands.json nor a build.ninja. Name the build folder of CMake, Meson "
            "or Ninja."_s.arg(place)};
    }
    BuildRun::require(u"ninja"_s, u"ninja-build"_s);
    const OwnFolder own(projectFile, u"ninja"_s);
    const QString listing = own.file(u"listing.json"_s);
    BuildRun run(u"ninja"_s, {u"-t"_s, u"compdb"_s, u"-x"_s});
    run.setFolder(place);
    run.setOutputFile(listing);
    if (!run.run()) {
        own.discard();
        throw Failure{u"stopped while ninja listed %1; no project was written."_s.arg(place)};
    }
    if (const QString problem = run.problem(); !problem.isEmpty()) {
        own.discard();
        throw Failure{u"%1: ninja can not read the build folder: %2"_s.arg(place, problem)};
    }
    const QJsonArray compilations = compilationsIn(listing);
    QFile::remove(listing);
    if (compilations.isEmpty()) {
        own.discard();
        throw Failure{u"%1: nothing is compiled in this build folder."_s.arg(place)};
    }
    QString database = own.file(u"compile_commands.json"_s);
    write(compilations, database);
    return database;
}

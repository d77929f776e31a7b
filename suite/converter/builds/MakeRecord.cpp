// SPDX-License-Identifier: MIT
#include "MakeRecord.h"
#include "../CommandWords.h"
#include "../Failure.h"
#include "../Notices.h"
#include "BuildRun.h"
#include "OwnFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QProcessEnvironment environmentWith(const QString& lines)
{
    static const QRegularExpression separators(u"[;\\r\\n]+"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList variables = lines.split(separators, Qt::SkipEmptyParts);
    for (const QString& variable : variables) {
        const qsizetype sign = variable.indexOf(u'=');
        const QString name = variable.first(std::max(sign, qsizetype(0))).trimmed();
        if (name.isEmpty() && !variable.trimmed().isEmpty()) {
            throw Failure{u"\"%1\" is no variable for the build. Write NAME=VALUE."_s.arg(variable.trimmed())};
        }
        if (!name.isEmpty()) {
            environment.insert(name, variable.sliced(sign + 1));
        }
    }
    return environment;
}

QStringList wordsOf(const QString& command)
{
    CommandWords words;
    if (!words.split(command.toUtf8(), CommandWords::Rules::Shell)) {
        throw Failure{u"a quote is not closed in the build command: %1"_s.arg(command)};
    }
    return words.size() > 0 ? words.texts() : QStringList{u"make"_s};
}

qsizetype entriesIn(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).array().size() : 0;
}

// The record of a build that was not whole is worth nothing.
class HalfRecord
{
public:
    explicit HalfRecord(const OwnFolder& ownFolder)
        : folder(ownFolder)
        , file(ownFolder.file(u"recording.json"_s))
    {
        QFile::remove(file);
    }
    ~HalfRecord()
    {
        QFile::remove(file);
        // What bear keeps while it records.
        QFile::remove(folder.file(u"recording.events.json"_s));
        if (!isKept) {
            folder.discard();
        }
    }
    HalfRecord(const HalfRecord&) = delete;
    HalfRecord& operator=(const HalfRecord&) = delete;

    void keepAs(const QString& name)
    {
        QFile::remove(name);
        isKept = QFile::rename(file, name);
        if (!isKept) {
            throw Failure{u"%1: can not be written."_s.arg(name)};
        }
    }

    const OwnFolder& folder;
    QString file;

private:
    bool isKept = false;
};

} // namespace

QString recordMake(const MakeRequest& request, const QString& projectFile, Notices& notices)
{
    const QStringList command = wordsOf(request.command);
    const QString place = QFileInfo(request.folder).absoluteFilePath();
    if (!QFileInfo(place).isDir()) {
        throw Failure{u"%1: is not a folder. Name the folder in which the build is started."_s.arg(place)};
    }
    const QProcessEnvironment environment = environmentWith(request.environment);
    BuildRun::require(u"bear"_s, u"bear"_s);
    const OwnFolder folder(projectFile, u"bear"_s);
    HalfRecord record(folder);
    BuildRun run(u"bear"_s, QStringList{u"--output"_s, record.file, u"--"_s} + command);
    run.setFolder(place);
    run.setEnvironment(environment);
    if (!run.run()) {
        throw Failure{u"stopped while the build was recorded; no project was written."_s};
    }
    if (const QString problem = run.problem(); !problem.isEmpty()) {
        throw Failure{u"%1: the build failed, so that its record is not whole: %2"_s.arg(place, problem)};
    }
    const qsizetype entries = entriesIn(record.file);
    if (entries == 0) {
        throw Failure{u"%1: nothing was compiled: run \"make clean\" first, or give a command that builds "
                      "everything, such as \"make -B\"."_s.arg(place)};
    }
    QString database = folder.file(u"compile_commands.json"_s);
    if (const qsizetype before = entriesIn(database); before > entries) {
        notices.say(
            u"warning: %1 compilations were recorded, %2 the last time: was a part built already?"_s.arg(entries).arg(
                before));
    }
    record.keepAs(database);
    return database;
}

// SPDX-License-Identifier: MIT
#include "SourceRuns.h"
#include "OptionSet.h"
#include "ResultFile.h"
#include "ToolText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView errorProbe(" -D__ORV__");
constexpr QLatin1StringView missingInclude("missingInclude");
constexpr QLatin1StringView missingSystemInclude("missingIncludeSystem");

QByteArray database(const std::vector<SourceRuns::Task>& tasks, const QString& moreDefines)
{
    QJsonArray entries;
    for (const SourceRuns::Task& task : tasks) {
        entries += QJsonObject{{u"directory"_s, QFileInfo(task.order.source).absolutePath()},
                               {u"file"_s, task.order.source},
                               {u"command"_s, task.options->command + moreDefines}};
    }
    return ToolText::forCppcheck(QString::fromUtf8(QJsonDocument(entries).toJson(QJsonDocument::Compact)));
}

/// cppcheck would take an earlier result for this one's: it does not see that libraries or the platform changed.
void removeLeftovers(const QDir& folder)
{
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        const QString path = folder.filePath(name);
        if (path != Job::stampName(folder.path()) && path != Job::dependencyName(folder.path())) {
            QFile::remove(path);
        }
    }
}

/// What cppcheck calls the records in a folder, by their sources. Its list has RECORD:CONFIGURATION:SOURCE, the
/// configuration empty.
QHash<QString, QString> recordsIn(const QString& folder)
{
    QHash<QString, QString> records;
    const QStringList lines =
        ToolText::fromFile(ResultFile::read(folder + u"/files.txt"_s)).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        records.insert(QDir::fromNativeSeparators(line.section(u"::"_s, 1).trimmed()),
                       folder + u'/' + line.section(u"::"_s, 0, 0));
    }
    return records;
}

bool moveRecord(const QString& record, const QString& folder)
{
    const QString place = Job::recordName(folder);
    QFile::remove(place);
    return QFile::rename(record, place);
}

AnalyserRun startOver(const std::vector<SourceRuns::Task>& tasks, const QString& folder, const QString& moreDefines,
                      const QStringList& words)
{
    const QString project = folder + u"/compile_commands.json"_s;
    ResultFile::writeScratch(project, database(tasks, moreDefines));
    const QStringList all =
        QStringList{u"--quiet"_s, u"--template={file}:{line}:{column}: {severity}: {message} [{id}]"_s} + words +
        QStringList{u"--project="_s + project, u"--enable=missingInclude"_s};
    return AnalyserRun::start(all + tasks.front().options->arguments, QDir::currentPath(), Analyser::timeLimit());
}

AnalyserRun start(const std::vector<SourceRuns::Task>& tasks, const QString& folder, const QString& moreDefines)
{
    AnalyserRun run = startOver(tasks, folder, moreDefines, {u"--inline-suppr"_s, u"--cppcheck-build-dir="_s + folder});
    // Of some sources these are a part only; the check of the whole program finds them all.
    run.findings.removeIf([](const Finding& finding) { return finding.id.startsWith("ctu"_L1); });
    // That some include is missing it tells without a place, and of the system's too.
    const auto isMissing = [](const Finding& finding) {
        return finding.id == missingInclude || finding.id == missingSystemInclude;
    };
    run.missesIncludes = std::ranges::any_of(run.findings, isMissing);
    if (!tasks.front().options->asksForMissingIncludes()) {
        run.findings.removeIf(isMissing);
    }
    return run;
}

AnalyserRun startAlone(const SourceRuns::Task& task, const QString& moreDefines)
{
    AnalyserRun run = start({task}, task.order.folder, moreDefines);
    const QHash<QString, QString> records = recordsIn(task.order.folder);
    if (!records.isEmpty()) {
        moveRecord(*records.cbegin(), task.order.folder);
    }
    return run;
}

/// True when the analyser saw no code: then it may have passed over an #error, which it tells only when a macro is
/// defined.
bool mayHideAnError(const SourceRuns::Task& task, const AnalyserRun& run)
{
    if (run.end != AnalyserRun::End::Normal || !run.findings.isEmpty() || task.options->command.contains(" -D"_L1)) {
        return false;
    }
    const QByteArray record = ResultFile::read(Job::recordName(task.order.folder));
    return !record.contains("<FileInfo") && !record.contains("<error");
}

// cppcheck's records spell bytes that are no printable ASCII in octal, its messages do not.
QString spelled(const QString& text)
{
    QString result;
    const QByteArray bytes = text.toUtf8();
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        result +=
            code >= ' ' && code < 0x7f ? QString(QLatin1Char(byte)) : u"\\%1"_s.arg(uint(code), 3, 8, QLatin1Char('0'));
    }
    return result;
}

QString keyOf(Finding finding)
{
    finding.text = spelled(finding.text);
    return finding.toLine();
}

/// One error of a record, as Finding; the first place is the one that a message is shown at.
Finding readError(QXmlStreamReader& xml)
{
    Finding finding;
    const QXmlStreamAttributes error = xml.attributes();
    finding.id = error.value("id"_L1).toString();
    finding.text = error.value("msg"_L1).toString();
    readSeverity(error.value("severity"_L1), finding.severity);
    finding.file = u"nofile"_s;
    bool hasPlace = false;
    while (xml.readNextStartElement()) {
        if (!hasPlace && xml.name() == "location"_L1) {
            hasPlace = true;
            const QXmlStreamAttributes place = xml.attributes();
            finding.file = QDir::fromNativeSeparators(place.value("file"_L1).toString());
            finding.line = place.value("line"_L1).toInt();
            finding.column = place.value("column"_L1).toInt();
        }
        xml.skipCurrentElement();
    }
    return finding;
}

class SharedRun
{
public:
    explicit SharedRun(const std::vector<SourceRuns::Task>& allTasks)
        : tasks(allTasks)
        , folder(allTasks.front().order.folder + u"/together"_s)
    {
    }

    ~SharedRun() { QDir(folder).removeRecursively(); }
    SharedRun(const SharedRun&) = delete;
    SharedRun& operator=(const SharedRun&) = delete;

    std::vector<AnalyserRun> analyse()
    {
        QDir().mkpath(folder);
        const AnalyserRun run = start(tasks, folder, {});
        if (run.end != AnalyserRun::End::Normal) {
            return {};
        }
        for (const Finding& finding : run.findings) {
            said.insert(keyOf(finding), finding);
        }
        records = recordsIn(folder);
        std::vector<AnalyserRun> runs;
        for (const SourceRuns::Task& task : tasks) {
            if (!take(task, runs)) {
                return {};
            }
        }
        for (AnalyserRun& each : runs) {
            each.missesIncludes = run.missesIncludes;
        }
        return told.size() == said.size() ? runs : std::vector<AnalyserRun>();
    }

private:
    bool take(const SourceRuns::Task& task, std::vector<AnalyserRun>& runs)
    {
        const QString record = records.value(task.order.source);
        const QByteArray text = ResultFile::read(record);
        // An analysis that broke off leaves it open.
        if (!text.trimmed().endsWith("</analyzerinfo>")) {
            return false;
        }
        AnalyserRun run;
        QXmlStreamReader xml(text);
        xml.readNextStartElement();
        while (xml.readNextStartElement()) {
            if (xml.name() != "error"_L1) {
                xml.skipCurrentElement();
                continue;
            }
            const QString key = readError(xml).toLine();
            const auto finding = said.constFind(key);
            if (finding != said.cend()) {
                told.insert(key);
                run.findings += *finding;
            }
        }
        const bool isTaken = !xml.hasError() && moveRecord(record, task.order.folder);
        runs.push_back(mayHideAnError(task, run) ? startAlone(task, errorProbe) : run);
        return isTaken;
    }

    const std::vector<SourceRuns::Task>& tasks;
    const QString folder;
    QHash<QString, QString> records;
    /// What the process said, by keyOf(), and what of it a source has been told.
    QHash<QString, Finding> said;
    QSet<QString> told;
};

} // namespace

AnalyserRun SourceRuns::alone(const Task& task)
{
    removeLeftovers(QDir(task.order.folder));
    const AnalyserRun run = startAlone(task, {});
    return mayHideAnError(task, run) ? startAlone(task, errorProbe) : run;
}

std::vector<AnalyserRun> SourceRuns::together(const std::vector<Task>& tasks)
{
    for (const Task& task : tasks) {
        removeLeftovers(QDir(task.order.folder));
    }
    return SharedRun(tasks).analyse();
}

QStringList SourceRuns::missingIncludes(const Task& task)
{
    QStringList names;
    const AnalyserRun run = startOver({task}, task.order.folder, {}, {u"--check-config"_s});
    for (const Finding& finding : run.findings) {
        if (finding.id == missingInclude) {
            names += finding.text.section(u'"', 1, 1);
        }
    }
    return names;
}

// SPDX-License-Identifier: MIT
#include "WholeProgram.h"
#include "AnalyserRun.h"
#include "AnalysisPlan.h"
#include "Failure.h"
#include "InlineSuppressions.h"
#include "Job.h"
#include "LibraryHints.h"
#include "ResultFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// What cppcheck left about one source for the check of the whole program.
struct Record
{
    QString source;
    QString path;
};

// cppcheck reads such records for the sources of its own list only, and analyses each again whose options differ. Empty
// files stand in for the sources: their records are up to date, and get the contents of the real ones.
class StandIns
{
public:
    StandIns(const AnalysisPlan& wholePlan, std::vector<Record> sourceRecords)
        : plan(wholePlan)
        , records(std::move(sourceRecords))
        , folder(plan.workFolder() + u"/whole-program"_s)
    {
    }

    QList<Finding> check()
    {
        QDir(folder).removeRecursively();
        QDir().mkpath(folder + u"/records"_s);
        // What cppcheck knows an analysed file by again: it is the same for all that are empty.
        writeSources(1);
        run();
        static const QRegularExpression hash(u"hash=\"[0-9]+\""_s);
        const QByteArray head = hash.match(QString::fromUtf8(ResultFile::read(recordName(0)))).captured().toUtf8();
        writeSources(records.size());
        for (size_t i = 0; i < records.size(); ++i) {
            const QByteArray record = ResultFile::read(records[i].path);
            const qsizetype start = record.indexOf("<FileInfo");
            ResultFile::writeScratch(recordName(i), "<?xml version=\"1.0\"?>\n<analyzerinfo " + head + ">\n" +
                                                        (start < 0 ? "</analyzerinfo>\n" : record.sliced(start)));
        }
        const qint64 size = QFileInfo(recordName(0)).size();
        QList<Finding> findings = run();
        if (head.isEmpty() || QFileInfo(recordName(0)).size() != size) {
            throw Failure{u"The check across all sources failed: this cppcheck does not take its records again."_s};
        }
        for (Finding& finding : findings) {
            name(finding);
        }
        return findings;
    }

private:
    QString standIn(size_t index) const { return u"s%1"_s.arg(index); }
    QString recordName(size_t index) const { return folder + u"/records/"_s + standIn(index) + u".a1"_s; }

    void writeSources(size_t count) const
    {
        QJsonArray entries;
        for (size_t i = 0; i < count; ++i) {
            const QString name = standIn(i) + u".cpp"_s;
            ResultFile::writeScratch(folder + u'/' + name, {});
            entries += QJsonObject{{u"directory"_s, folder}, {u"file"_s, name}, {u"command"_s, u"cc"_s}};
        }
        ResultFile::writeScratch(folder + u"/compile_commands.json"_s,
                                 QJsonDocument(entries).toJson(QJsonDocument::Compact));
    }

    QList<Finding> run() const
    {
        QStringList arguments{u"--quiet"_s, u"--enable=warning,style,performance,portability,unusedFunction"_s,
                              u"--template={file}:{line}:{column}: {severity}: {message} [{id}]"_s,
                              u"--cppcheck-build-dir=records"_s, u"--project=compile_commands.json"_s};
        QStringList libraries;
        for (const PlannedPart& part : plan.parts) {
            libraries += LibraryHints::libraries(part.options);
        }
        libraries.removeDuplicates();
        for (const QString& library : std::as_const(libraries)) {
            arguments += u"--library="_s + library;
        }
        const AnalyserRun result = AnalyserRun::start(arguments, folder, Analyser::timeLimit());
        if (result.end != AnalyserRun::End::Normal) {
            throw Failure{u"The check across all sources failed: %1."_s.arg(result.reason)};
        }
        return result.findings;
    }

    void name(Finding& finding) const
    {
        const QString file = QFileInfo(finding.file).completeBaseName();
        bool isNumber = false;
        const size_t index = file.sliced(std::min<qsizetype>(1, file.size())).toUInt(&isNumber);
        if (isNumber && index < records.size() && finding.file == standIn(index) + u".cpp"_s) {
            finding.file = records[index].source;
        }
    }

    const AnalysisPlan& plan;
    const std::vector<Record> records;
    const QString folder;
};

std::vector<Record> recordsOf(const AnalysisPlan& plan)
{
    std::vector<Record> records;
    for (const AnalysisUnit& unit : plan.units) {
        if (!unit.obstacle.isEmpty() || !QFile::exists(unit.output + u".met"_s)) {
            continue;
        }
        const QString record = Job::recordName(plan.workFolder() + u'/' + unit.folder);
        if (QFile::exists(record)) {
            records.push_back({unit.source, record});
        }
    }
    return records;
}

/// Changes with every record.
QByteArray stateOf(const std::vector<Record>& records)
{
    QByteArray state;
    for (const Record& record : records) {
        state += record.path.toUtf8() + ' ' +
                 QByteArray::number(QFileInfo(record.path).lastModified().toMSecsSinceEpoch()) + '\n';
    }
    return state;
}

} // namespace

QString WholeProgram::resultFile(const AnalysisPlan& plan)
{
    return plan.workFolder() + u"/whole-program.err"_s;
}

void WholeProgram::check(const AnalysisPlan& plan)
{
    const std::vector<Record> records = recordsOf(plan);
    const QString stateFile = plan.workFolder() + u"/whole-program.state"_s;
    const QByteArray state = stateOf(records);
    if (QFile::exists(resultFile(plan)) && ResultFile::read(stateFile) == state) {
        return;
    }
    QByteArray lines;
    if (!records.empty()) {
        const QList<Finding> findings = StandIns(plan, records).check();
        for (const Finding& finding : findings) {
            if (!isSuppressedInline(finding)) {
                lines += finding.toLine().toUtf8() + '\n';
            }
        }
    }
    ResultFile::write(resultFile(plan), lines);
    ResultFile::write(stateFile, state);
}

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

// cppcheck reads such records for the sources of its own list only, analyses each again whose options differ, and takes
// long for a long list. So one empty file stands in for all sources: its record is up to date and gets the contents of
// all others.
class StandIn
{
public:
    StandIn(const AnalysisPlan& wholePlan, const std::vector<Record>& sourceRecords)
        : plan(wholePlan)
        , records(sourceRecords)
        , folder(plan.workFolder() + u"/whole-program"_s)
    {
    }

    QList<Finding> check()
    {
        QDir(folder).removeRecursively();
        QDir().mkpath(folder + u"/records"_s);
        ResultFile::writeScratch(folder + u"/all.cpp"_s, {});
        const QJsonObject entry{{u"directory"_s, folder}, {u"file"_s, u"all.cpp"_s}, {u"command"_s, u"cc"_s}};
        ResultFile::writeScratch(folder + u"/compile_commands.json"_s,
                                 QJsonDocument(QJsonArray{entry}).toJson(QJsonDocument::Compact));
        // What cppcheck knows an analysed file by again.
        run();
        const QString record = folder + u"/records/all.a1"_s;
        static const QRegularExpression hash(u"hash=\"[0-9]+\""_s);
        const QByteArray head = hash.match(QString::fromUtf8(ResultFile::read(record))).captured().toUtf8();
        const QByteArray contents =
            "<?xml version=\"1.0\"?>\n<analyzerinfo " + head + ">\n" + mergedRecords() + "</analyzerinfo>\n";
        ResultFile::writeScratch(record, contents);
        QList<Finding> findings = run();
        if (head.isEmpty() || QFileInfo(record).size() != contents.size()) {
            throw Failure{u"The check across all sources failed: this cppcheck does not take its records again."_s};
        }
        for (Finding& finding : findings) {
            if (finding.file == "all.cpp"_L1) {
                place(finding);
            }
        }
        return findings;
    }

private:
    struct Place
    {
        QString source;
        int line;
    };

    /// A function stands in its record without its file, so its line becomes a number of ours.
    QByteArray mergedRecords()
    {
        QByteArray merged;
        for (const Record& record : records) {
            const QByteArray text = ResultFile::read(record.path);
            const qsizetype start = text.indexOf("<FileInfo");
            const qsizetype end = text.lastIndexOf("</analyzerinfo>");
            if (start >= 0 && end > start) {
                addFileInfo(record.source, text.sliced(start, end - start), merged);
            }
        }
        return merged;
    }

    void addFileInfo(const QString& source, const QByteArray& text, QByteArray& merged)
    {
        qsizetype done = 0;
        for (qsizetype at = text.indexOf("<functiondecl "); at >= 0; at = text.indexOf("<functiondecl ", at + 1)) {
            constexpr QByteArrayView attribute("lineNumber=\"");
            const qsizetype begin = text.indexOf(attribute, at) + attribute.size();
            const qsizetype end = text.indexOf('"', begin);
            if (begin < at || end < 0) {
                break;
            }
            places.push_back({source, text.sliced(begin, end - begin).toInt()});
            merged += text.sliced(done, begin - done) + QByteArray::number(qsizetype(places.size()));
            done = end;
        }
        merged += text.sliced(done);
    }

    void place(Finding& finding) const
    {
        if (finding.line > 0 && size_t(finding.line) <= places.size()) {
            const Place& found = places[size_t(finding.line) - 1];
            finding.file = found.source;
            finding.line = found.line;
        }
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

    const AnalysisPlan& plan;
    const std::vector<Record>& records;
    const QString folder;
    std::vector<Place> places;
};

/// A template has such a function only where it is called, but cppcheck loses the call among its records; and names
/// that begin so are made by macros of a test's framework, which calls them.
bool isCalledUnseen(const Finding& finding)
{
    return finding.id == "unusedFunction"_L1 &&
           (finding.text.contains(" < "_L1) || finding.text.startsWith("The function '__"_L1));
}

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
        const QList<Finding> findings = StandIn(plan, records).check();
        for (const Finding& finding : findings) {
            if (!isSuppressedInline(finding) && !isCalledUnseen(finding)) {
                lines += finding.toLine().toUtf8() + '\n';
            }
        }
    }
    ResultFile::write(resultFile(plan), lines);
    ResultFile::write(stateFile, state);
}

// SPDX-License-Identifier: MIT
#include "RunFile.h"
#include "AnalysisPlan.h"
#include "NinjaRun.h"
#include "NinjaSyntax.h"
#include "ResultFile.h"
#include "ToolText.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostSources = 16;
// Sources that take seconds gain nothing by it, and a user wants to see each of them go by.
constexpr qint64 mostBytes = 64LL * 1024;
/// So many jobs for each processor are still to come when one begins.
constexpr qsizetype jobsAhead = 4;

using Batch = QList<size_t>;

class Batches
{
public:
    Batches(const AnalysisPlan& wholePlan, int jobs)
        : plan(wholePlan)
        , ahead(std::max(jobs, 1) * jobsAhead)
    {
    }

    /// In the order of the units, those with the same options together.
    QList<Batch> of(const std::vector<UnitOptions>& options, const QList<size_t>& units)
    {
        QHash<QString, qsizetype> places;
        QList<Batch> groups;
        for (const size_t unit : units) {
            const QString& shared = options[unit].shared;
            const auto place = places.constFind(shared);
            if (shared.isEmpty() || place == places.cend()) {
                places.insert(shared, groups.size());
                groups += Batch{unit};
            } else {
                groups[*place] += unit;
            }
        }
        remaining = units.size();
        for (const Batch& group : std::as_const(groups)) {
            divide(group);
        }
        return result;
    }

private:
    void divide(const Batch& group)
    {
        Batch batch;
        qint64 bytes = 0;
        QSet<QString> sources;
        const auto close = [&] {
            remaining -= batch.size();
            result += batch;
            batch.clear();
            sources.clear();
            bytes = 0;
        };
        for (const size_t unit : group) {
            const QString& source = plan.units[unit].source;
            const qint64 size = QFileInfo(source).size();
            // The analyser's records go by the source, so one that is built twice goes into two jobs.
            const bool isFull =
                batch.size() >= std::clamp<qsizetype>(remaining / ahead, 1, mostSources) || bytes + size > mostBytes;
            if (!batch.isEmpty() && (isFull || sources.contains(source))) {
                close();
            }
            batch += unit;
            bytes += size;
            sources += source;
        }
        close();
    }

    const AnalysisPlan& plan;
    const qsizetype ahead;
    qsizetype remaining = 0;
    QList<Batch> result;
};

} // namespace

void writeRunFile(const AnalysisPlan& plan, const std::vector<UnitOptions>& options, const QList<size_t>& units,
                  const QString& program, const RunSettings& settings)
{
    QString text = u"ninja_required_version = 1.8\nbuilddir = run\n\nrule analyse\n  command = "_s +
                   NinjaSyntax::launcher(settings.launcher) + NinjaSyntax::value(NinjaSyntax::shellQuoted(program)) +
                   u" job $orders\n  description = $units\n"_s;
    const QList<Batch> batches = Batches(plan, settings.usedJobs()).of(options, units);
    for (qsizetype i = 0; i < batches.size(); ++i) {
        QString orders;
        QString numbers;
        for (const size_t index : batches[i]) {
            const AnalysisUnit& unit = plan.units[index];
            for (const QString& word : {options[index].file, unit.source, unit.output, unit.folder}) {
                orders += u' ' + NinjaSyntax::shellQuoted(word);
            }
            numbers += u' ' + QString::number(index);
        }
        text += u"\nbuild run/%1: analyse\n  orders ="_s.arg(i) + NinjaSyntax::value(orders) + u"\n  units ="_s +
                numbers + u'\n';
    }
    ResultFile::write(plan.workFolder() + u'/' + QLatin1StringView(runFileName), ToolText::forNinja(text));
}

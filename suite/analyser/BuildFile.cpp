// SPDX-License-Identifier: MIT
#include "BuildFile.h"
#include "AnalysisPlan.h"
#include "Job.h"
#include "NinjaSyntax.h"
#include "OptionSet.h"
#include "ResultFile.h"
#include "ToolText.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

QString hashOf(const QByteArray& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex().first(16));
}

/// The language by a file's ending as cppcheck sees it; what has none of these is the analyser's own language.
bool tellsLanguage(const QString& source)
{
    static constexpr std::array endings = {"c",   "cl", "cpp", "cxx", "cc",  "c++", "hpp",
                                           "hxx", "hh", "tpp", "txx", "ipp", "ixx", "C"};
    const QString suffix = source.sliced(source.lastIndexOf(u'.') + 1);
    return std::ranges::any_of(endings, [&](const char* each) { return suffix == QLatin1StringView(each); });
}

class Writer
{
public:
    Writer(const AnalysisPlan& wholePlan, const QString& analyser)
        : plan(wholePlan)
        , version(analyser)
    {
    }

    std::vector<UnitOptions> write()
    {
        std::vector<UnitOptions> options;
        // Nobody runs these commands: which sources share a process is the run file's. What the options came to is told
        // by the stamp's contents, so Ninja goes by the times of files alone.
        text = u"ninja_required_version = 1.8\n\nrule analyse\n  command = analyse $folder\n"
               "  description = $folder\n  depfile = $rule\n  generator = 1\n"_s;
        for (const AnalysisUnit& unit : plan.units) {
            options.push_back(unit.obstacle.isEmpty() ? optionSet(unit) : UnitOptions());
            if (unit.obstacle.isEmpty()) {
                add(unit, options.back());
            }
        }
        ResultFile::writeChanged(plan.workFolder() + u"/build.ninja"_s, ToolText::forNinja(text));
        return options;
    }

private:
    void add(const AnalysisUnit& unit, const UnitOptions& options)
    {
        // A source that is gone when Ninja looks is the job's to tell, it does not end the run.
        if (!named.contains(unit.source)) {
            named.insert(unit.source);
            text += u"\nbuild "_s + NinjaSyntax::path(unit.source) + u": phony"_s;
        }
        text += u"\nbuild "_s + NinjaSyntax::path(Job::stampName(unit.folder)) + u" | "_s +
                NinjaSyntax::path(unit.output + u".err"_s) + u": analyse "_s + NinjaSyntax::path(unit.source);
        text += u" | "_s + options.file;
        for (const QString& input : plan.parts[unit.part].inputs) {
            text += u' ' + NinjaSyntax::path(input);
        }
        text += u"\n  folder = "_s + NinjaSyntax::value(unit.folder) + u"\n  rule = "_s +
                NinjaSyntax::value(Job::dependencyName(unit.folder)) + u'\n';
    }

    UnitOptions optionSet(const AnalysisUnit& unit)
    {
        const AnalysisOptions& options = plan.parts[unit.part].options;
        const bool isTold = !options.language.isEmpty() || tellsLanguage(unit.source);
        UnitOptions& known = (isTold ? written : writtenWithLanguage)[unit.part];
        if (known.file.isEmpty()) {
            OptionSet set(options, version);
            set.forC = plan.isC;
            if (!isTold) {
                set.setLanguage(plan.isC ? u"c"_s : u"c++"_s);
            }
            if (!set.header().isEmpty()) {
                const QString header = plan.workFolder() + u"/options/"_s + hashOf(set.header()) + u".h"_s;
                ResultFile::writeChanged(header, set.header());
                set.setHeader(header);
            }
            const QByteArray json = set.toJson();
            known = {u"options/"_s + hashOf(json) + u".json"_s, set.sharedArguments()};
            ResultFile::writeChanged(plan.workFolder() + u'/' + known.file, json);
        }
        return known;
    }

    const AnalysisPlan& plan;
    const QString version;
    QString text;
    QSet<QString> named;
    QHash<size_t, UnitOptions> written;
    QHash<size_t, UnitOptions> writtenWithLanguage;
};

} // namespace

std::vector<UnitOptions> writeBuildFile(const AnalysisPlan& plan, const QString& version)
{
    return Writer(plan, version).write();
}

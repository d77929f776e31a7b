// SPDX-License-Identifier: MIT
#include "BuildFile.h"
#include "AnalysisPlan.h"
#include "Job.h"
#include "OptionSet.h"
#include "ResultFile.h"

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

/// Ninja gives its commands to a shell, but where there is none to the system as they are.
QString shellQuoted(const QString& word)
{
#ifdef Q_OS_UNIX
    return u'\'' + QString(word).replace(u'\'', u"'\\''"_s) + u'\'';
#else
    return u'"' + word + u'"';
#endif
}

/// For the value of a variable.
QString ninjaValue(QString text)
{
    return text.replace(u'$', u"$$"_s);
}

QString ninjaPath(const QString& path)
{
    return ninjaValue(path).replace(u' ', u"$ "_s).replace(u':', u"$:"_s);
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
    Writer(const AnalysisPlan& wholePlan, const QString& analyser, const QString& job)
        : plan(wholePlan)
        , version(analyser)
        , program(job)
    {
    }

    void write()
    {
        text = u"ninja_required_version = 1.8\n\nrule analyse\n  command = "_s + launcher() +
               ninjaValue(shellQuoted(program)) +
               u" job $options $source $results $folder\n  description = $name\n  deps = gcc\n  depfile = $rule\n"_s;
        for (const AnalysisUnit& unit : plan.units) {
            if (unit.obstacle.isEmpty()) {
                add(unit);
            }
        }
        ResultFile::writeChanged(plan.workFolder() + u"/build.ninja"_s, text.toUtf8());
    }

private:
    static QString launcher()
    {
#ifdef Q_OS_UNIX
        return u"$$"_s + QLatin1StringView(launcherVariable) + u' ';
#else
        return ninjaValue(qEnvironmentVariable(launcherVariable)) + u' ';
#endif
    }

    void add(const AnalysisUnit& unit)
    {
        // A source that is gone when Ninja looks is the job's to tell, it does not end the run.
        if (!named.contains(unit.source)) {
            named.insert(unit.source);
            text += u"\nbuild "_s + ninjaPath(unit.source) + u": phony"_s;
        }
        text += u"\nbuild "_s + ninjaPath(Job::stampName(unit.folder)) + u" | "_s + ninjaPath(unit.output + u".err"_s) +
                u": analyse "_s + ninjaPath(unit.source);
        const QStringList& inputs = plan.parts[unit.part].inputs;
        if (!inputs.isEmpty()) {
            text += u" |"_s;
        }
        for (const QString& input : inputs) {
            text += u' ' + ninjaPath(input);
        }
        const auto variable = [this](const QString& name, const QString& value) {
            text += u"\n  "_s + name + u" = "_s + ninjaValue(value);
        };
        variable(u"options"_s, shellQuoted(optionSet(unit)));
        variable(u"source"_s, shellQuoted(unit.source));
        variable(u"results"_s, shellQuoted(unit.output));
        variable(u"folder"_s, unit.folder);
        variable(u"rule"_s, Job::dependencyName(unit.folder));
        variable(u"name"_s, plan.shownName(unit.source));
        text += u'\n';
    }

    /// The name of the file with the unit's options; it changes with them, and so does the command.
    QString optionSet(const AnalysisUnit& unit)
    {
        const AnalysisOptions& options = plan.parts[unit.part].options;
        const bool isTold = !options.language.isEmpty() || tellsLanguage(unit.source);
        QString& known = (isTold ? written : writtenWithLanguage)[unit.part];
        if (known.isEmpty()) {
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
            known = u"options/"_s + hashOf(json) + u".json"_s;
            ResultFile::writeChanged(plan.workFolder() + u'/' + known, json);
        }
        return known;
    }

    const AnalysisPlan& plan;
    const QString version;
    const QString program;
    QString text;
    QSet<QString> named;
    QHash<size_t, QString> written;
    QHash<size_t, QString> writtenWithLanguage;
};

} // namespace

void writeBuildFile(const AnalysisPlan& plan, const QString& version, const QString& program)
{
    Writer(plan, version, program).write();
}

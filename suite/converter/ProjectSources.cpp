// SPDX-License-Identifier: MIT
#include "ProjectSources.h"
#include "Arguments.h"
#include "Failure.h"
#include "FilePresence.h"
#include "PathFilter.h"
#include "Paths.h"

#include <QSet>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The folder above all files that were added.
class CommonFolder
{
public:
    void add(const QString& file)
    {
        if (first.isEmpty()) {
            first = file;
            common = Paths::folderOf(file);
        }
        while (!Paths::isBelow(file, common)) {
            const QString parent = Paths::folderOf(common);
            if (parent == common || parent.size() >= common.size()) {
                throw Failure{u"%1 and %2 have no folder in common. Convert them separately."_s.arg(first, file)};
            }
            common = parent;
        }
    }

    const QString& path() const { return common; }

private:
    QString first;
    QString common;
};

bool isOwnLanguage(SourceLanguage language, bool forC)
{
    return language == SourceLanguage::Unknown || (language == SourceLanguage::C) == forC;
}

class Chooser
{
public:
    Chooser(const Sources& from, const Arguments& wanted)
        : sources(from)
        , arguments(wanted)
        , filter(wanted.exclude)
    {
    }

    ProjectSources choose()
    {
        seen.reserve(sources.units.size());
        for (qsizetype i = 0; i < sources.units.size(); ++i) {
            if (isWanted(sources.units[i])) {
                chosen.units += i;
            }
        }
        if (!filter.isEmpty()) {
            CommonFolder base;
            for (const qsizetype unit : std::as_const(chosen.units)) {
                base.add(sources.units[unit].path);
            }
            chosen.leftOut = chosen.units.removeIf(
                [&](qsizetype unit) { return filter.matches(sources.units[unit].path, base.path()); });
        }
        FilePresence presence;
        CommonFolder common;
        chosen.units.removeIf([&](qsizetype unit) {
            const QString& path = sources.units[unit].path;
            if (isLost(path, presence)) {
                return true;
            }
            common.add(path);
            return false;
        });
        if (chosen.units.isEmpty()) {
            throw nothingLeft();
        }
        chosen.commonFolder = common.path();
        return std::move(chosen);
    }

private:
    bool isWanted(const SourceUnit& unit)
    {
        const SourceSettings& settings = sources.settingsOf(unit);
        if (!isSource(settings.language)) {
            ++chosen.noSources[settings.language];
            return false;
        }
        if (arguments.onlyOwnLanguage && !isOwnLanguage(settings.language, arguments.forC)) {
            ++chosen.otherLanguage;
            return false;
        }
        const qsizetype before = seen.size();
        seen.insert({Paths::key(unit.path), {settings.options, settings.compiler}});
        chosen.duplicates += seen.size() == before ? 1 : 0;
        return seen.size() != before;
    }

    bool isLost(const QString& path, FilePresence& presence)
    {
        if (presence.isFile(path)) {
            return false;
        }
        if (chosen.missing++ == 0) {
            chosen.firstMissing = path;
        }
        return !arguments.keepMissing;
    }

    Failure nothingLeft() const
    {
        qsizetype others = chosen.otherLanguage;
        for (const qsizetype count : chosen.noSources) {
            others += count;
        }
        return {u"no source file is left for the project: %1 given, %2 do not exist, %3 are in another language, "
                "%4 match the patterns of what to leave out. Check the input."_s.arg(sources.units.size())
                    .arg(chosen.missing)
                    .arg(others)
                    .arg(chosen.leftOut)};
    }

    const Sources& sources;
    const Arguments& arguments;
    PathFilter filter;
    ProjectSources chosen;
    QSet<std::pair<QString, std::pair<int, int>>> seen;
};

} // namespace

ProjectSources ProjectSources::choose(const Sources& sources, const Arguments& arguments)
{
    return Chooser(sources, arguments).choose();
}

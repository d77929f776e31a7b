// SPDX-License-Identifier: MIT
#include "UnreadHeaders.h"
#include "IncludeScan.h"
#include "OptionSet.h"
#include "ResultFile.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString fileIn(const QString& folder)
{
    return folder + u"/unread"_s;
}

bool isOfTheSystem(const QString& name, const QStringList& systemFolders)
{
    // Where no compiler could be asked.
    const QStringList usual{u"/usr/include"_s, u"/usr/local/include"_s};
    return std::ranges::any_of(systemFolders + usual,
                               [&](const QString& folder) { return QFileInfo::exists(folder + u'/' + name); });
}

} // namespace

QStringList UnreadHeaders::of(const SourceRuns::Task& task, const AnalyserRun& run, const IncludeScan& scan)
{
    QSet<QString> names = scan.missingQuoted();
    names.removeIf([&](const QString& name) { return isOfTheSystem(name, task.options->systemFolders); });
    if (!run.missesIncludes || names.isEmpty()) {
        return {};
    }
    // Conditions may keep the others from being included.
    const QStringList reached = SourceRuns::missingIncludes(task);
    QStringList found((names & QSet<QString>(reached.cbegin(), reached.cend())).values());
    found.sort();
    return found;
}

void UnreadHeaders::write(const QString& folder, const QStringList& names)
{
    if (!names.isEmpty()) {
        ResultFile::writeScratch(fileIn(folder), names.join(u'\n').toUtf8());
    }
}

QStringList UnreadHeaders::read(const QString& folder)
{
    return QString::fromUtf8(ResultFile::read(fileIn(folder))).split(u'\n', Qt::SkipEmptyParts);
}

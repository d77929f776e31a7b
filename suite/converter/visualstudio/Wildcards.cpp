// SPDX-License-Identifier: MIT
#include "Wildcards.h"
#include "PathFinder.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString expression(const QString& pattern)
{
    QString result;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        if (QStringView(pattern).sliced(i).startsWith("**/"_L1)) {
            result += "(?:[^/]+/)*"_L1;
            i += 2;
        } else if (pattern[i] == u'*') {
            result += "[^/]*"_L1;
        } else if (pattern[i] == u'?') {
            result += "[^/]"_L1;
        } else {
            result += QRegularExpression::escape(pattern.sliced(i, 1));
        }
    }
    return QRegularExpression::anchoredPattern(result);
}

} // namespace

bool Wildcards::isIn(const QString& pattern)
{
    return pattern.contains(u'*') || pattern.contains(u'?');
}

QStringList Wildcards::find(const QString& folder, const QString& pattern, PathFinder& paths)
{
    static const QRegularExpression wild(u"[*?]"_s);
    QString wanted = pattern;
    wanted.replace(u'\\', u'/');
    const qsizetype fixedEnd = wanted.lastIndexOf(u'/', wanted.indexOf(wild));
    const QString top = paths.find(folder, fixedEnd < 0 ? u"."_s : wanted.first(fixedEnd) + u'/');
    if (QDir(top).isRoot()) {
        return {};
    }
    const QString below = wanted.sliced(fixedEnd + 1);
    const QRegularExpression matcher(expression(below), QRegularExpression::CaseInsensitiveOption);
    QStringList found;
    QDirIterator files(top, QDir::Files | QDir::Hidden,
                       below.contains(u'/') || below.contains("**"_L1) ? QDirIterator::Subdirectories
                                                                       : QDirIterator::NoIteratorFlags);
    while (files.hasNext()) {
        const QString path = files.next();
        if (matcher.match(path.sliced(top.size() + 1)).hasMatch()) {
            found += path;
        }
    }
    found.sort();
    return found;
}

// SPDX-License-Identifier: MIT
#include "PathFilter.h"
#include "Failure.h"
#include "Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A set of characters, as [a-c]; leaves the position alone when it is none.
QString characterSet(const QString& pattern, qsizetype& i)
{
    const qsizetype end = pattern.indexOf(u']', i + 2);
    if (end < 0) {
        return u"\\["_s;
    }
    QString inside = pattern.sliced(i + 1, end - i - 1).replace(u'\\', u"\\\\"_s);
    if (inside.startsWith(u'!')) {
        inside[0] = u'^';
    }
    i = end;
    return u'[' + inside + u']';
}

QString expression(const QString& pattern)
{
    QString result;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar character = pattern[i];
        if (character == u'*') {
            const bool twice = i + 1 < pattern.size() && pattern[i + 1] == u'*';
            i += twice ? 1 : 0;
            result += twice ? u".*"_s : u"[^/]*"_s;
        } else if (character == u'?') {
            result += u"[^/]"_s;
        } else if (character == u'[') {
            result += characterSet(pattern, i);
        } else {
            result += QRegularExpression::escape(QString(character));
        }
    }
    return result;
}

// Some patterns together; all of a long list would be too large for one expression.
QList<QRegularExpression> expressions(const QString& begin, const QStringList& patterns)
{
    constexpr qsizetype mostTogether = 100;
    QList<QRegularExpression> result;
    for (qsizetype i = 0; i < patterns.size(); i += mostTogether) {
        const QRegularExpression expression(begin + u'(' + patterns.mid(i, mostTogether).join(u'|') + u")(/|$)"_s,
                                            QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::DontCaptureOption |
                                                QRegularExpression::DotMatchesEverythingOption);
        if (!expression.isValid()) {
            throw Failure{u"the patterns of what to leave out can not be used: %1. Shorten the one near \"%2\"."_s.arg(
                expression.errorString(), patterns[i].left(60))};
        }
        result += expression;
    }
    return result;
}

bool matchesOne(const QList<QRegularExpression>& expressions, const QString& text)
{
    return std::ranges::any_of(expressions,
                               [&](const QRegularExpression& expression) { return expression.match(text).hasMatch(); });
}

} // namespace

PathFilter::PathFilter(const QStringList& patterns)
{
    QStringList relativeOnes;
    QStringList absoluteOnes;
    for (QString pattern : patterns) {
        while (pattern.size() > 1 && pattern.endsWith(u'/')) {
            pattern.chop(1);
        }
        if (pattern.startsWith("./"_L1)) {
            pattern = pattern.sliced(2);
        }
        const bool isAbsolute = pattern.startsWith(u'/') || Paths::isWindows(pattern);
        if (!pattern.isEmpty()) {
            (isAbsolute ? absoluteOnes : relativeOnes) += expression(pattern);
        }
    }
    everywhere = expressions(u"(^|/)"_s, relativeOnes);
    absolute = expressions(u"^"_s, absoluteOnes);
}

bool PathFilter::matches(const QString& path, const QString& base) const
{
    if (matchesOne(absolute, path)) {
        return true;
    }
    if (everywhere.isEmpty() || path.size() <= base.size()) {
        return false;
    }
    const qsizetype start = base.endsWith(u'/') ? base.size() : base.size() + 1;
    return matchesOne(everywhere, path.sliced(start));
}

// SPDX-License-Identifier: MIT
#include "PathFilter.h"
#include "Paths.h"

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
    const auto options = QRegularExpression::CaseInsensitiveOption | QRegularExpression::DontCaptureOption |
                         QRegularExpression::DotMatchesEverythingOption;
    if (!relativeOnes.isEmpty()) {
        everywhere = QRegularExpression(u"(^|/)("_s + relativeOnes.join(u'|') + u")(/|$)"_s, options);
    }
    if (!absoluteOnes.isEmpty()) {
        absolute = QRegularExpression(u"^("_s + absoluteOnes.join(u'|') + u")(/|$)"_s, options);
    }
}

bool PathFilter::matches(const QString& path, const QString& base) const
{
    if (!absolute.pattern().isEmpty() && absolute.match(path).hasMatch()) {
        return true;
    }
    if (everywhere.pattern().isEmpty() || path.size() <= base.size()) {
        return false;
    }
    const qsizetype start = base.endsWith(u'/') ? base.size() : base.size() + 1;
    return everywhere.match(QStringView(path).sliced(start).toString()).hasMatch();
}

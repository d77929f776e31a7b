// SPDX-License-Identifier: MIT
#include "dialogs/SourcePage.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// About what is laid out without a stall.
constexpr int linesBefore = 100;
constexpr int linesShown = 400;
constexpr qsizetype longestLine = 200;
constexpr qsizetype longestPage = 30'000;
constexpr qint64 longestFile = 8LL * 1024 * 1024;

QString shownLine(const QByteArray& line)
{
    const QString text = QString::fromUtf8(line);
    const bool isLong = text.size() > longestLine;
    return (isLong ? text.first(longestLine) : text).toHtmlEscaped() + (isLong ? u"…"_s : QString());
}

} // namespace

QString SourcePage::anchor(int line)
{
    return u'L' + QString::number(line);
}

int SourcePage::lineOf(const QString& anchor)
{
    return anchor.startsWith(u'L') ? QStringView(anchor).sliced(1).toInt() : 0;
}

QString SourcePage::html(const QString& fileName, int line)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {};
    }
    const QByteArray text = file.read(longestFile);
    if (text.isEmpty() || text.contains('\0')) {
        return {};
    }
    const QByteArrayList lines = text.split('\n');
    const auto first = std::max(1, std::min(line, int(lines.size())) - linesBefore);
    QString page = u"<pre>"_s + fileName.toHtmlEscaped() + u"\n\n"_s + (first > 1 ? u"…\n"_s : QString());
    int number = first;
    for (; number <= lines.size() && number < first + linesShown && page.size() < longestPage; ++number) {
        const QString shown =
            u"<a name=\"%1\">%2</a>  "_s.arg(anchor(number)).arg(number, 6) + shownLine(lines[number - 1]);
        page += (number == line ? u"<b>"_s + shown + u"</b>"_s : shown) + u'\n';
    }
    return page + (number <= lines.size() ? u"…\n"_s : QString()) + u"</pre>"_s;
}

// SPDX-License-Identifier: MIT
#include "Finding.h"

#include <QHash>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array severityNames = {"debug", "information", "portability", "performance",
                                      "style", "warning",     "error"};

constexpr std::array givingUpIds = {"syntaxError",      "unknownMacro",         "preprocessorErrorDirective",
                                    "internalAstError", "internalError",        "cppcheckError",
                                    "cppcheckLimit",    "noValidConfiguration", "instantiationError"};

constexpr std::array failedRunIds = {FailedRun::crashed, FailedRun::timedOut, FailedRun::failed, FailedRun::missing};

template <size_t count>
bool contains(const std::array<const char*, count>& ids, const QString& id)
{
    return std::ranges::any_of(ids, [&](const char* each) { return id == QLatin1StringView(each); });
}

/// Reads the number that ends before end, with a colon in front of it, and moves end to that colon.
bool readNumberBefore(QStringView line, qsizetype& end, int& number)
{
    const qsizetype colon = line.first(end).lastIndexOf(u':');
    bool isNumber = false;
    number = colon < 0 ? 0 : line.sliced(colon + 1, end - colon - 1).toInt(&isNumber);
    end = colon;
    return isNumber;
}

} // namespace

const char* severityName(Severity severity)
{
    return severityNames[size_t(severity)];
}

bool readSeverity(QStringView name, Severity& severity)
{
    for (size_t i = 0; i < severityNames.size(); ++i) {
        if (name == QLatin1StringView(severityNames[i])) {
            severity = Severity(i);
            return true;
        }
    }
    return false;
}

QString Finding::toLine() const
{
    return file + u':' + QString::number(line) + u':' + QString::number(column) + u": "_s +
           QLatin1StringView(severityName(severity)) + u": "_s + text + u" ["_s + id + u']';
}

// File names may hold colons and blanks, so the severity between ": " and ": " is what is looked for.
bool Finding::fromLine(const QString& text_)
{
    // Windows' programs end their lines with a carriage return, too.
    const QStringView all = QStringView(text_).trimmed();
    const qsizetype bracket = all.lastIndexOf(u" ["_s);
    if (bracket < 0 || !all.endsWith(u']')) {
        return false;
    }
    for (qsizetype at = all.indexOf(u": "_s); at >= 0 && at < bracket; at = all.indexOf(u": "_s, at + 1)) {
        const qsizetype next = all.indexOf(u": "_s, at + 2);
        qsizetype end = at;
        if (next >= 0 && readSeverity(all.sliced(at + 2, next - at - 2), severity) &&
            readNumberBefore(all, end, column) && readNumberBefore(all, end, line)) {
            file = all.first(end).toString();
            text = next + 2 < bracket ? all.sliced(next + 2, bracket - next - 2).toString() : QString();
            id = all.sliced(bracket + 2, all.size() - bracket - 3).toString();
            return true;
        }
    }
    return false;
}

bool Finding::isGivingUp() const
{
    return contains(givingUpIds, id);
}

bool Finding::isFailedRun() const
{
    return contains(failedRunIds, id);
}

size_t qHash(const Finding& finding, size_t seed)
{
    return qHashMulti(seed, finding.file, finding.line, finding.column, finding.id, finding.text);
}

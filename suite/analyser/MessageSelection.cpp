// SPDX-License-Identifier: MIT
#include "MessageSelection.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<Severity, 5> leastSeverity = {Severity::Debug, Severity::Debug, Severity::Portability,
                                                   Severity::Warning, Severity::Error};

void add(QStringList& list, const QString& ids)
{
    for (const QString& id : ids.split(u',', Qt::SkipEmptyParts)) {
        list += id.trimmed();
    }
}

bool names(const QStringList& patterns, const Finding& finding)
{
    return std::ranges::any_of(patterns, [&](const QString& pattern) {
        if (pattern.endsWith(u'*')) {
            return finding.id.startsWith(QStringView(pattern).chopped(1));
        }
        return finding.id == pattern || QLatin1StringView(severityName(finding.severity)) == pattern;
    });
}

} // namespace

bool MessageSelection::take(const QString& option, const QString& value)
{
    if (option == "-only"_L1) {
        add(only, value);
    } else if (option == "-nomsg"_L1) {
        add(hidden, value);
    } else if (option == "-forgetall"_L1) {
        if (value == "only"_L1) {
            only.clear();
        } else if (value == "nomsg"_L1) {
            hidden.clear();
        }
    } else if (option == "-threshold"_L1) {
        threshold = std::clamp(value.toInt(), 1, int(leastSeverity.size()) - 1);
    } else {
        return false;
    }
    return true;
}

void MessageSelection::takeErrors(const QString& ids)
{
    add(errors, ids);
}

bool MessageSelection::shows(const Finding& finding) const
{
    if (finding.isGivingUp() || finding.isFailedRun()) {
        return true;
    }
    if (names(hidden, finding) || (!only.isEmpty() && !names(only, finding))) {
        return false;
    }
    return shown(finding).severity >= leastSeverity[size_t(threshold)];
}

Finding MessageSelection::shown(Finding finding) const
{
    if (names(errors, finding)) {
        finding.severity = Severity::Error;
    }
    return finding;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

struct AnalysisPlan;
class AnalysisResults;

/// The results of an analysis in different forms, UTF-8. All tell the sources that were not analysed first, then each
/// message once.
namespace Reports {

/// Lines that a terminal or an editor takes places from.
QByteArray text(const AnalysisPlan& plan, const AnalysisResults& findings);
/// As RFC 4180 has it.
QByteArray csv(const AnalysisPlan& plan, const AnalysisResults& findings);

/// "148 of 151 sources analysed" and what else is worth one line each.
QStringList summary(const AnalysisPlan& plan, const AnalysisResults& findings);
/// Which headers were not found, and what to do; empty when all were.
QString unreadHeaders(const AnalysisResults& findings);
/// "3 errors, 1 warning"; "no messages" when there are none.
QString totals(const AnalysisResults& findings);
/// "seen from 3 sources"; empty for one.
QString seenFrom(int sources);

} // namespace Reports

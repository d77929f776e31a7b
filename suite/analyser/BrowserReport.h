// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

struct AnalysisPlan;
class AnalysisResults;

/// The analyser's own report, with the sources and the messages in them.
namespace BrowserReport {

/// The messages in cppcheck's XML format, version 2.
QByteArray xml(const AnalysisPlan& plan, const AnalysisResults& findings);

/// Lets cppcheck-htmlreport write its pages into the folder and gives the first. Throws a Failure when it can not.
QString write(const AnalysisPlan& plan, const AnalysisResults& findings, const QString& folder);

/// Opens a page in the user's browser; false when there is no program for that.
bool open(const QString& page);

} // namespace BrowserReport

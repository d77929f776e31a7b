// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

struct AnalysisPlan;
class AnalysisResults;

/// The results as a SARIF 2.1.0 log, which code hosting and CI systems read. Files below the project's source folder
/// are told relative to it (SRCROOT).
QByteArray sarifReport(const AnalysisPlan& plan, const AnalysisResults& findings);

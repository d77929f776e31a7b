// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

struct AnalysisPlan;
class AnalysisResults;

/// The results as a page of its own.
namespace HtmlReport {

/// For a browser: all messages by file, with boxes that hide severities. Without scripts.
QByteArray page(const AnalysisPlan& plan, const AnalysisResults& findings);

/// For a text window, which knows no style sheets and takes long over long pages: a section for each severity, and of
/// very many messages the weightiest.
QByteArray plainPage(const AnalysisPlan& plan, const AnalysisResults& findings);

} // namespace HtmlReport

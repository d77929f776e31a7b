// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// What decides how long a window works on a piece of html, found in one pass without understanding it. The pass ends
/// early where it is too much anyway; the figures are those up to there.
struct HtmlShape
{
    qsizetype characters = 0;
    /// Tags that begin an element: table cells, what begins a line or paragraph, and the others.
    qsizetype cells = 0;
    qsizetype blocks = 0;
    qsizetype inlines = 0;
    /// The characters of the longest paragraph, over its line breaks.
    qsizetype longestParagraph = 0;
    qsizetype lineBreaks = 0;
    /// The longest piece of a line that can not be wrapped: its characters, and the tags within it.
    qsizetype longestRun = 0;
    qsizetype longestRunTags = 0;
    /// How deep elements, and tables, lie in each other; what is never closed counts.
    qsizetype depth = 0;
    qsizetype tableDepth = 0;
    /// Style rules, each of which is tried on each element.
    qsizetype rules = 0;
    qsizetype images = 0;

    static HtmlShape of(QStringView html);
    /// True when a text browser lays it out without its window stalling noticeably.
    bool isQuick() const;
};

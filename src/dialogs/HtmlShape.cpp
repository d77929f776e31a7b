// SPDX-License-Identifier: MIT
#include "dialogs/HtmlShape.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array cellTags = {"td"_L1, "th"_L1};
constexpr std::array blockTags = {"p"_L1,  "br"_L1, "div"_L1, "tr"_L1,   "table"_L1,      "li"_L1,    "ul"_L1,  "ol"_L1,
                                  "h1"_L1, "h2"_L1, "h3"_L1,  "h4"_L1,   "h5"_L1,         "h6"_L1,    "pre"_L1, "hr"_L1,
                                  "dl"_L1, "dt"_L1, "dd"_L1,  "body"_L1, "blockquote"_L1, "center"_L1};
constexpr std::array emptyTags = {"br"_L1, "hr"_L1, "img"_L1, "meta"_L1, "link"_L1, "input"_L1, "wbr"_L1};

// Microseconds of a middling machine, measured with benchmarks/HtmlShapes.cpp; what grows with the square is what makes
// a window freeze.
constexpr double budget = 30'000;
constexpr double perCharacter = 0.4;
constexpr double perCell = 45;
constexpr double perBlock = 10;
constexpr double perInline = 4;
constexpr double perImage = 500;
// What is not laid out in steps.
constexpr double perParagraphCharacter = 0.35;
constexpr double perLineBreak = 5;
constexpr double perRunSquare = 1.6e-4;
constexpr double perRunTagSquare = 0.005;
constexpr double perDepthSquare = 0.014;
constexpr double perRule = 0.06;
// Each table is measured several times by the one around it.
constexpr double perTableLevel = 4;

bool is(QStringView name, QLatin1StringView known)
{
    return name.compare(known, Qt::CaseInsensitive) == 0;
}

template <std::size_t size>
bool isOneOf(QStringView name, const std::array<QLatin1StringView, size>& names)
{
    return std::ranges::any_of(names, [name](QLatin1StringView known) { return is(name, known); });
}

class Measuring
{
public:
    explicit Measuring(QStringView text)
        : html(text)
    {
    }

    HtmlShape measure()
    {
        shape.characters = html.size();
        while (position < html.size() && !isHopeless()) {
            if (html[position] == u'<' && position + 1 < html.size() && isTagStart(html[position + 1])) {
                readTag();
            } else {
                readCharacter();
            }
        }
        endRun();
        endParagraph();
        return shape;
    }

private:
    // Its length and its tags alone are too much, so there is no need to look at the rest.
    bool isHopeless() const
    {
        return double(shape.characters) * perCharacter + double(shape.cells) * perCell +
                   double(shape.blocks) * perBlock + double(shape.inlines) * perInline >
               budget;
    }

    static bool isTagStart(QChar character)
    {
        return character.isLetter() || character == u'/' || character == u'!' || character == u'?';
    }

    void readCharacter()
    {
        const QChar character = html[position++];
        shape.rules += character == u'{' ? 1 : 0;
        ++paragraph;
        if (character == u'\n' && preformatted > 0) {
            endParagraph();
        }
        // A no-break space is one for the eye only.
        if (character.isSpace() && character != QChar::Nbsp) {
            endRun();
        } else {
            ++run;
        }
    }

    void readTag()
    {
        const bool isComment = html.sliced(position).startsWith("<!--"_L1);
        const qsizetype end = isComment ? html.indexOf("-->"_L1, position + 2) : html.indexOf(u'>', position);
        const QStringView tag = html.sliced(position + 1, (end < 0 ? html.size() : end) - position - 1);
        position = end < 0 ? html.size() : end + 1;
        if (isComment || tag.isEmpty()) {
            // Style sheets hide in comments.
            shape.rules += tag.count(u'{');
            return;
        }
        const bool closes = tag.startsWith(u'/');
        const QStringView name = nameOf(closes ? tag.sliced(1) : tag);
        const bool isCell = isOneOf(name, cellTags);
        if (is(name, "br"_L1)) {
            ++shape.lineBreaks;
            endRun();
        } else if (isCell || isOneOf(name, blockTags)) {
            endRun();
            endParagraph();
        } else {
            ++runTags;
        }
        if (closes) {
            leave(name);
        } else {
            enter(name, isCell);
        }
    }

    static QStringView nameOf(QStringView tag)
    {
        qsizetype length = 0;
        while (length < tag.size() && tag[length].isLetterOrNumber()) {
            ++length;
        }
        return tag.first(length);
    }

    void enter(QStringView name, bool isCell)
    {
        if (isCell) {
            ++shape.cells;
        } else if (isOneOf(name, blockTags)) {
            ++shape.blocks;
        } else {
            ++shape.inlines;
        }
        shape.images += is(name, "img"_L1) ? 1 : 0;
        if (isOneOf(name, emptyTags)) {
            return;
        }
        // A paragraph, a row or a cell that is not closed ends with the next.
        if (!is(name, "p"_L1)) {
            shape.depth = std::max(shape.depth, ++depth);
        }
        if (is(name, "table"_L1)) {
            shape.tableDepth = std::max(shape.tableDepth, ++tables);
        }
        preformatted += is(name, "pre"_L1) ? 1 : 0;
    }

    void leave(QStringView name)
    {
        if (!is(name, "p"_L1)) {
            depth = std::max<qsizetype>(depth - 1, 0);
        }
        if (is(name, "table"_L1)) {
            tables = std::max<qsizetype>(tables - 1, 0);
        }
        if (is(name, "pre"_L1)) {
            preformatted = std::max<qsizetype>(preformatted - 1, 0);
        }
    }

    void endRun()
    {
        shape.longestRun = std::max(shape.longestRun, run);
        shape.longestRunTags = std::max(shape.longestRunTags, runTags);
        run = 0;
        runTags = 0;
    }

    void endParagraph()
    {
        shape.longestParagraph = std::max(shape.longestParagraph, paragraph);
        paragraph = 0;
    }

    QStringView html;
    qsizetype position = 0;
    qsizetype paragraph = 0;
    qsizetype run = 0;
    qsizetype runTags = 0;
    qsizetype depth = 0;
    qsizetype tables = 0;
    // Where each line is a paragraph.
    qsizetype preformatted = 0;
    HtmlShape shape;
};

double square(qsizetype number)
{
    return double(number) * double(number);
}

} // namespace

HtmlShape HtmlShape::of(QStringView html)
{
    return Measuring(html).measure();
}

bool HtmlShape::isQuick() const
{
    const double levels = std::pow(perTableLevel, double(std::clamp<qsizetype>(tableDepth - 1, 0, 50)));
    const double elements = double(cells + blocks + inlines);
    const double cost = double(characters) * perCharacter + double(cells) * perCell * levels +
                        double(blocks) * perBlock + double(inlines) * perInline + double(images) * perImage +
                        double(longestParagraph) * perParagraphCharacter + double(lineBreaks) * perLineBreak +
                        square(longestRun) * perRunSquare + square(longestRunTags) * perRunTagSquare +
                        square(depth) * perDepthSquare + double(rules) * elements * perRule;
    return cost <= budget;
}

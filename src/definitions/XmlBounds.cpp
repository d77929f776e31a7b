// SPDX-License-Identifier: MIT
#include "definitions/XmlBounds.h"

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

struct Scan
{
    std::string_view text;
    std::size_t at = 0;

    bool startsWith(std::string_view piece) const { return text.substr(at, piece.size()) == piece; }
    // To behind the end mark, or to the end of the text.
    void skipTo(std::string_view end)
    {
        const std::size_t found = text.find(end, at);
        at = found == std::string_view::npos ? text.size() : found + end.size();
    }
};

// Behind the tag, with the number of values in quotes that it has.
int skipTag(Scan& scan)
{
    int values = 0;
    while (scan.at < scan.text.size() && scan.text[scan.at] != '>') {
        const char character = scan.text[scan.at++];
        if (character == '"' || character == '\'') {
            scan.skipTo({&character, 1});
            ++values;
        }
    }
    return values;
}

bool nextMarkup(Scan& scan)
{
    scan.at = std::min(scan.text.find('<', scan.at), scan.text.size());
    return scan.at < scan.text.size();
}

} // namespace

XmlBounds::Refusal XmlBounds::check(const QByteArray& document)
{
    if (document.size() > largestDocument) {
        return {1, u"the file is larger than %1 MB"_s.arg(largestDocument / 1024 / 1024)};
    }
    Scan scan{{document.constData(), std::size_t(document.size())}};
    const auto line = [&](std::size_t position) { return 1 + std::ranges::count(scan.text.substr(0, position), '\n'); };
    while (nextMarkup(scan)) {
        const std::size_t start = scan.at;
        if (scan.startsWith("<!--")) {
            scan.skipTo("-->");
        } else if (scan.startsWith("<![CDATA[")) {
            scan.skipTo("]]>");
        } else if (scan.startsWith("<?")) {
            scan.skipTo("?>");
        } else if (scan.startsWith("<!DOCTYPE")) {
            return {line(start), u"a document type declaration is refused"_s};
        } else if (skipTag(scan) > mostAttributes) {
            return {line(start), u"an element has more than %1 attributes"_s.arg(mostAttributes)};
        }
    }
    return {};
}

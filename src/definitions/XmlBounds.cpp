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

bool declaresDocumentType(std::string_view text)
{
    for (std::size_t at = text.find('!'); at != std::string_view::npos; at = text.find('!', at + 1)) {
        if (at > 0 && text[at - 1] == '<' && text.substr(at).starts_with("!D")) {
            return true;
        }
    }
    return false;
}

// A tag ends before the next one begins, so that no tag of a document whose tags begin close to each other has too many
// attributes. Most documents are told to be harmless by this alone, with a look here and there.
bool isHarmless(std::string_view text)
{
    constexpr std::size_t shortestAttribute = std::string_view(" a=''").size();
    constexpr std::size_t farthest = XmlBounds::mostAttributes * shortestAttribute;
    std::size_t start = std::min(text.find('<'), text.size());
    while (text.size() - start > farthest) {
        // The last one that begins close enough; none when it is the same again.
        const std::size_t next = text.rfind('<', start + farthest);
        if (next == start) {
            return false;
        }
        start = next;
    }
    return !declaresDocumentType(text);
}

XmlBounds::Refusal refusal(std::string_view text)
{
    Scan scan{text};
    const auto line = [&](std::size_t position) { return 1 + std::ranges::count(text.substr(0, position), '\n'); };
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
        } else if (skipTag(scan) > XmlBounds::mostAttributes) {
            return {line(start), u"an element has more than %1 attributes"_s.arg(XmlBounds::mostAttributes)};
        }
    }
    return {};
}

} // namespace

XmlBounds::Refusal XmlBounds::check(const QByteArray& document)
{
    if (document.size() > largestDocument) {
        return {1, u"the file is larger than %1 MB"_s.arg(largestDocument / 1024 / 1024)};
    }
    const std::string_view text{document.constData(), std::size_t(document.size())};
    return isHarmless(text) ? Refusal{} : refusal(text);
}

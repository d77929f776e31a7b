// SPDX-License-Identifier: MIT
#include "launchers/ApplicationReader.h"
#include "definitions/DefinitionsXml.h"
#include "launchers/PageData.h"
#include "launchers/RunAppData.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using TextMember = QString RunAppData::*;
using NumberMember = int RunAppData::*;

constexpr std::array numbers = {
    std::pair{"buttonwidth"_L1, NumberMember(&RunAppData::buttonwidth)},
    std::pair{"columnspan"_L1, NumberMember(&RunAppData::columnspan)},
    std::pair{"rowspan"_L1, NumberMember(&RunAppData::rowspan)},
    std::pair{"type"_L1, NumberMember(&RunAppData::type)},
};

constexpr std::array texts = {
    std::pair{"description"_L1, TextMember(&RunAppData::description)},
    std::pair{"colour"_L1, TextMember(&RunAppData::colour)},
    std::pair{"image"_L1, TextMember(&RunAppData::image)},
};

struct Arrow
{
    QLatin1StringView element;
    const char16_t* direction;
    TextMember member;
};

constexpr std::array arrows = {
    Arrow{"aboveimage"_L1, u"up", &RunAppData::aboveImage},
    Arrow{"belowimage"_L1, u"down", &RunAppData::belowImage},
    Arrow{"leftimage"_L1, u"left", &RunAppData::leftImage},
    Arrow{"rightimage"_L1, u"right", &RunAppData::rightImage},
};

bool readPlain(QXmlStreamReader& xml, RunAppData& launcher, QStringView name)
{
    for (const auto& [element, member] : numbers) {
        if (name == element) {
            launcher.*member = xml.readElementText().toInt();
            return true;
        }
    }
    for (const auto& [element, member] : texts) {
        if (name == element) {
            launcher.*member = xml.readElementText();
            return true;
        }
    }
    for (const Arrow& arrow : arrows) {
        if (name == arrow.element) {
            launcher.*arrow.member = u":%1_%2.xpm"_s.arg(QString::fromUtf16(arrow.direction), xml.readElementText());
            return true;
        }
    }
    return false;
}

void readDisplayOutput(QXmlStreamReader& xml, RunAppData& launcher)
{
    const QString keyword = xml.readElementText();
    launcher.displayMode = keyword == "text"_L1      ? TextDisplay
                           : keyword == "html"_L1    ? HtmlDisplay
                           : keyword == "message"_L1 ? MessageDisplay
                                                     : NoDisplay;
    launcher.busyCursor = launcher.displayMode != NoDisplay || keyword == "pdf"_L1 || keyword == "cursor"_L1;
}

} // namespace

void readApplication(QXmlStreamReader& xml, RunAppData& launcher, PageData& page, const TextExpander& expand)
{
    startApplication(xml, launcher);
    readRecord(xml, u"application", [&](QStringView name) {
        if (readPlain(xml, launcher, name) || readApplicationItem(xml, launcher, name, expand)) {
            return;
        }
        if (name == "condition"_L1) {
            const QString action = xml.attributes().value("action"_L1).toString();
            page.conditions[xml.attributes().value("name"_L1).toString()][&launcher] = action;
            launcher.startsDisabled |= action == "enable"_L1;
        } else if (name == "displayoutput"_L1) {
            readDisplayOutput(xml, launcher);
        }
    });
}

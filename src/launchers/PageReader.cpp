// SPDX-License-Identifier: MIT
#include "launchers/PageReader.h"
#include "definitions/DefinitionsXml.h"
#include "launchers/PageData.h"
#include "launchers/RunAppData.h"

using namespace Qt::StringLiterals;

std::shared_ptr<PageData> readLauncherPage(QXmlStreamReader& xml, const TextExpander& expand)
{
    auto made = std::make_shared<PageData>();
    PageData& page = *made;
    const QString element = xml.name().toString();
    if (element != "display_options"_L1) {
        page.titleAttribute = xml.attributes().value("title"_L1).toString();
    }
    const auto number = [&] { return xml.readElementText().toInt(); };
    readRecord(xml, element, [&](QStringView name) {
        if (name == "title"_L1) {
            page.title = xml.readElementText();
        } else if (name == "subtitle"_L1) {
            page.subtitle = xml.readElementText();
        } else if (name == "helppage"_L1) {
            page.helpPage = xml.readElementText();
        } else if (name == "columns"_L1) {
            page.columns = number();
        } else if (name == "buttonwidth"_L1) {
            page.buttonWidth = number();
        } else if (name == "buttonheight"_L1) {
            page.buttonHeight = number();
        } else if (name == "horizontalspacing"_L1) {
            page.horizontalSpacing = number();
        } else if (name == "verticalspacing"_L1) {
            page.verticalSpacing = number();
        } else if (name == "application"_L1) {
            page.ReadApplication(xml, expand);
        }
    });
    return made;
}

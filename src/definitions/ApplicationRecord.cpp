// SPDX-License-Identifier: MIT
#include "definitions/ApplicationRecord.h"
#include "definitions/DefinitionsXml.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

void readExe(QXmlStreamReader& xml, ApplicationRecord& application, const TextExpander& expand)
{
    const QString analyser = xml.attributes().value("TYPE"_L1).toString();
    const QString program = expand(QDir::toNativeSeparators(xml.readElementText()));
    if (analyser != "ORVCPP"_L1) {
        application.cExe = program;
    }
    if (analyser != "ORVC"_L1) {
        application.cppExe = program;
    }
}

} // namespace

void startApplication(QXmlStreamReader& xml, ApplicationRecord& application)
{
    application.line = xml.lineNumber();
    application.name = xml.attributes().value("name"_L1).toString().replace("\\n"_L1, "\n"_L1);
}

bool readApplicationItem(QXmlStreamReader& xml, ApplicationRecord& application, QStringView name,
                         const TextExpander& expand)
{
    if (name == "exe"_L1) {
        readExe(xml, application, expand);
    } else if (name == "exeargs"_L1) {
        application.exeargs = splitAtWhiteSpace(xml.readElementText());
    } else if (name == "runFromExeDir"_L1) {
        application.runFromExeDir |= xml.readElementText().toInt() != 0;
    } else if (name == "dependency"_L1) {
        application.dependency += xml.readElementText();
    } else {
        return false;
    }
    return true;
}

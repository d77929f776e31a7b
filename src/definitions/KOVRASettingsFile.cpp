// SPDX-License-Identifier: MIT
#include "definitions/KOVRASettingsFile.h"
#include "definitions/ConfigurationKind.h"
#include "definitions/CreatorCheck.h"
#include "definitions/DefinitionsXml.h"
#include "definitions/InputDataReader.h"
#include "definitions/PathHelpers.h"
#include "definitions/XmlBounds.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(DefinitionsReader)
};

// The kind that a child element gives a file of; none for any other child.
const ConfigurationFacts* configurationOf(QStringView element, QLatin1StringView ConfigurationFacts::*name)
{
    const auto& kinds = configurationKinds();
    const auto kind =
        std::ranges::find_if(kinds, [&](const ConfigurationFacts& facts) { return element == facts.*name; });
    return kind == kinds.end() ? nullptr : &*kind;
}

// A personality of a conversion type serves the analyser that its TYPE names.
void readPersonality(DefinitionsReader& xml, const TextExpander& expand, ProjectCreatorData& creator,
                     const ConfigurationFacts& kind)
{
    creator.*kind.asked = true;
    const QLatin1StringView analyser = xml.choice("TYPE"_L1, {"C"_L1, "CPP"_L1});
    const QString path = xml.readExpanded(expand);
    if (analyser == "C"_L1) {
        creator.*kind.cPreset = path;
    } else if (analyser == "CPP"_L1) {
        creator.*kind.cppPreset = path;
    }
}

void readProjectCreator(DefinitionsReader& xml, ProjectCreatorData& creator, const TextExpander& expand)
{
    creator.line = xml.lineNumber();
    qint64 argumentsLine = creator.line;
    readRecord(xml, u"projectCreator", [&](QStringView name) {
        if (name == "name"_L1) {
            creator.name = xml.readElementText();
        } else if (name == "exe"_L1) {
            creator.exe = xml.readExpanded(expand);
        } else if (name == "exeargs"_L1) {
            argumentsLine = xml.lineNumber();
            creator.exeArgs = xml.readWords();
        } else if (name == "orvcProject"_L1) {
            creator.orvcProject |= xml.readNumber() != 0;
        } else if (name == "orvcppProject"_L1) {
            creator.orvcppProject |= xml.readNumber() != 0;
        } else if (name == "inputData"_L1) {
            readInputData(xml, creator, nullptr, expand);
        } else if (const auto* kind = configurationOf(name, &ConfigurationFacts::name)) {
            readPersonality(xml, expand, creator, *kind);
        }
    });
    checkCreator(xml, creator, argumentsLine);
}

void readComplianceModule(DefinitionsReader& xml, ComplianceModule& module, const TextExpander& expand)
{
    const auto path = [&] { return QDir::cleanPath(expand(ToForwardSlashes(xml.readElementText()))); };
    readRecord(xml, u"compliance_module", [&](QStringView name) {
        if (name == "product"_L1) {
            const QStringView product = xml.readText();
            module.isC = product == "ORVC"_L1 || product == "orvc"_L1;
        } else if (name == "name"_L1) {
            module.name = xml.readElementText();
        } else if (name == "location"_L1) {
            module.location = path();
        } else if (const auto* kind = configurationOf(name, &ConfigurationFacts::moduleElement)) {
            module.*kind->moduleFile = path();
        }
    });
}

// Unlike the others this record reads every child as text, so a child with elements of its own is an error.
void readCodingStandard(DefinitionsReader& xml, CodingStandard& standard, const TextExpander& expand)
{
    standard.name = xml.attributes().value("name"_L1).toString();
    standard.isC = xml.attributes().value("language"_L1) != "C++"_L1;
    readRecord(xml, u"codingStandard", [&](QStringView element) {
        const QString name = element.toString();
        const QString text = expand(ToForwardSlashes(xml.readElementText()));
        if (const auto* kind = configurationOf(name, &ConfigurationFacts::name)) {
            standard.*kind->standardFile = text;
        } else if (name == "description"_L1) {
            standard.description = text;
        } else {
            xml.passedOver(u"codingStandard");
        }
    });
}

void readCrossModuleAnalysis(DefinitionsReader& xml, CrossModuleAnalysis& analysis, const TextExpander& expand)
{
    readRecord(xml, u"crossModuleAnalysis", [&](QStringView name) {
        if (name == "exe"_L1) {
            analysis.exe = QDir::cleanPath(expand(ToForwardSlashes(xml.readElementText())));
        } else if (name == "exeargs"_L1) {
            analysis.exeArgs = splitAtWhiteSpace(xml.readText());
        }
    });
}

// What a page and its launchers say of their looks.
constexpr std::array pageItems = {"title"_L1,       "subtitle"_L1,     "helppage"_L1,          "columns"_L1,
                                  "buttonwidth"_L1, "buttonheight"_L1, "horizontalspacing"_L1, "verticalspacing"_L1};
constexpr std::array applicationItems = {"buttonwidth"_L1, "columnspan"_L1, "rowspan"_L1,    "type"_L1,
                                         "description"_L1, "colour"_L1,     "image"_L1,      "aboveimage"_L1,
                                         "belowimage"_L1,  "leftimage"_L1,  "rightimage"_L1, "displayoutput"_L1};

template <typename Names>
bool isOneOf(const Names& names, QStringView name)
{
    return std::ranges::any_of(names, [&](QLatin1StringView known) { return name == known; });
}

// Without buttons only what a launcher runs counts.
void readApplication(DefinitionsReader& xml, ApplicationRecord& application, const TextExpander& expand)
{
    startApplication(xml, application);
    if (application.name.isEmpty()) {
        xml.remark(Text::tr("<application> has no name"));
    }
    readRecord(xml, u"application", [&](QStringView name) {
        if (readApplicationItem(xml, application, name, expand)) {
            return;
        }
        if (name == "condition"_L1) {
            xml.skipCurrentElement();
        } else if (isOneOf(applicationItems, name)) {
            xml.readElementText();
        }
    });
}

void readApplications(DefinitionsReader& xml, std::vector<std::unique_ptr<ApplicationRecord>>& applications,
                      const TextExpander& expand)
{
    readRecord(xml, xml.name().toString(), [&](QStringView name) {
        if (name == "application"_L1) {
            readApplication(xml, *applications.emplace_back(std::make_unique<ApplicationRecord>()), expand);
        } else if (isOneOf(pageItems, name)) {
            xml.readElementText();
        }
    });
}

template <typename Record>
Record& add(std::vector<std::unique_ptr<Record>>& list)
{
    return *list.emplace_back(std::make_unique<Record>());
}

} // namespace

void KOVRASettingsFile::ReadFile(const QString& name, const Context& context)
{
    const auto trace = [&](const QString& label, const QString& value) {
        if (context.trace) {
            context.trace(label, value);
        }
    };
    const QString located = LocateFile(name, context.xmlArea);
    trace(u"KOVRASettingsFile::ReadFile="_s, located);
    file.setFileName(located);
    reportsPages.clear();
    applicationPages.clear();
    lastError = {};
    const QFileInfo info(located);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        const QString reason = !info.exists()   ? u"it does not exist"_s
                               : !info.isFile() ? u"it is not a file"_s
                                                : file.errorString();
        trace(u"KOVRASettingsFile::ReadFile: "_s, located + u": "_s + reason);
        return;
    }
    const QByteArray document = file.readAll();
    file.close();
    readDocument(document, context);
    if (lastError.line > 0) {
        trace(u"KOVRASettingsFile::ReadFile: "_s,
              u"%1:%2:%3: %4"_s.arg(located).arg(lastError.line).arg(lastError.column).arg(lastError.reason));
    }
}

bool KOVRASettingsFile::hasConversionTypes() const
{
    return std::ranges::any_of(projectCreators, [](const auto& creator) { return !creator->name.isEmpty(); });
}

QStringList KOVRASettingsFile::standardFiles() const
{
    QStringList files;
    for (const auto& standard : codingStandards) {
        if (standard->available && standard->selected) {
            for (const ConfigurationFacts& kind : configurationKinds()) {
                files += (*standard).*kind.standardFile;
            }
        }
    }
    return files;
}

void KOVRASettingsFile::readDocument(const QByteArray& document, const Context& context)
{
    if (const auto [line, reason] = XmlBounds::check(document); !reason.isEmpty()) {
        lastError = {line, 1, reason};
        return;
    }
    const QStringList environment = QProcess::systemEnvironment();
    readElements(document, context,
                 [&](const QString& text) { return ExpandPlaceholders(text, context.places, environment); });
}

void KOVRASettingsFile::readElements(const QByteArray& document, const Context& context, const TextExpander& expand)
{
    DefinitionsReader xml(document, context.remark);
    bool isRoot = true;
    const auto readPage = [&](std::vector<std::shared_ptr<PageData>>& pages) {
        if (context.readPage) {
            pages.push_back(context.readPage(xml, expand));
        } else {
            readApplications(xml, applications, expand);
        }
    };
    while (!xml.atEnd() && !xml.hasError()) {
        if (readToken(xml) != QXmlStreamReader::StartElement) {
            continue;
        }
        const QString element = xml.name().toString();
        const bool isInRoot = !std::exchange(isRoot, false);
        if (element == "reportsPage"_L1) {
            readPage(reportsPages);
        } else if (element == "applicationPage"_L1 || element == "display_options"_L1) {
            readPage(applicationPages);
        } else if (element == "codingStandard"_L1) {
            readCodingStandard(xml, add(codingStandards), expand);
        } else if (element == "crossModuleAnalysis"_L1) {
            readCrossModuleAnalysis(xml, add(crossModuleAnalyses), expand);
        } else if (element == "compliance_module"_L1) {
            readComplianceModule(xml, add(complianceModules), expand);
        } else if (element == "projectCreator"_L1) {
            readProjectCreator(xml, add(projectCreators), expand);
        } else if (isInRoot) {
            xml.passedOver(u"settings");
        }
    }
    if (xml.hasError()) {
        lastError = {xml.lineNumber(), xml.columnNumber(), xml.errorString()};
    }
}

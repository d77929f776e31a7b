// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "definitions/DefinitionsXml.h"
#include "definitions/InputDataReader.h"
#include "definitions/KOVRASettingsFile.h"
#include "definitions/PathHelpers.h"
#include "definitions/Placeholders.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A personality of a conversion type serves the analyser that its TYPE names.
void readPersonality(QXmlStreamReader& xml, const TextExpander& expand, QString& c, QString& cpp, bool& asked)
{
    asked = true;
    const QString analyser = xml.attributes().value("TYPE"_L1).toString();
    const QString path = expand(xml.readElementText());
    if (analyser == "C"_L1) {
        c = path;
    } else if (analyser == "CPP"_L1) {
        cpp = path;
    }
}

void readProjectCreator(QXmlStreamReader& xml, ProjectCreatorData& creator, const TextExpander& expand)
{
    readRecord(xml, u"projectCreator", [&](QStringView name) {
        if (name == "name"_L1) {
            creator.name = xml.readElementText();
        } else if (name == "exe"_L1) {
            creator.exe = expand(xml.readElementText());
        } else if (name == "exeargs"_L1) {
            // Simplified text has single blanks between its words.
            creator.exeArgs = xml.readElementText().simplified().split(u' ', Qt::SkipEmptyParts);
        } else if (name == "orvcProject"_L1) {
            creator.orvcProject |= xml.readElementText().toInt() != 0;
        } else if (name == "orvcppProject"_L1) {
            creator.orvcppProject |= xml.readElementText().toInt() != 0;
        } else if (name == "inputData"_L1) {
            readInputData(xml, creator, nullptr, expand);
        } else if (name == "compilerPersonality"_L1) {
            readPersonality(xml, expand, creator.cCompilerPersonality, creator.cppCompilerPersonality,
                            creator.hasCompilerPersonality);
        } else if (name == "analyserPersonality"_L1) {
            readPersonality(xml, expand, creator.cAnalyserPersonality, creator.cppAnalyserPersonality,
                            creator.hasAnalyserPersonality);
        } else if (name == "messagePersonality"_L1) {
            readPersonality(xml, expand, creator.cMessagePersonality, creator.cppMessagePersonality,
                            creator.hasMessagePersonality);
        }
    });
}

void readComplianceModule(QXmlStreamReader& xml, ComplianceModule& module, const TextExpander& expand)
{
    const auto path = [&] { return QDir::cleanPath(expand(ToForwardSlashes(xml.readElementText()))); };
    readRecord(xml, u"compliance_module", [&](QStringView name) {
        if (name == "product"_L1) {
            const QString product = xml.readElementText();
            module.isC = product == "ORVC"_L1 || product == "orvc"_L1;
        } else if (name == "name"_L1) {
            module.name = xml.readElementText();
        } else if (name == "location"_L1) {
            module.location = path();
        } else if (name == "analyserpersonality"_L1) {
            module.analyserPersonality = path();
        } else if (name == "messagepersonality"_L1) {
            module.messagePersonality = path();
        } else if (name == "compilerpersonality"_L1) {
            module.compilerPersonality = path();
        }
    });
}

// Unlike the others this record reads every child as text, so a child with elements of its own is an error.
void readCodingStandard(QXmlStreamReader& xml, CodingStandard& standard, const TextExpander& expand)
{
    standard.name = xml.attributes().value("name"_L1).toString();
    standard.isC = xml.attributes().value("language"_L1) != "C++"_L1;
    readRecord(xml, u"codingStandard", [&](QStringView element) {
        const QString name = element.toString();
        const QString text = expand(ToForwardSlashes(xml.readElementText()));
        if (name == "messagePersonality"_L1) {
            standard.messagePersonality = text;
        } else if (name == "analyserPersonality"_L1) {
            standard.analyserPersonality = text;
        } else if (name == "compilerPersonality"_L1) {
            standard.compilerPersonality = text;
        } else if (name == "description"_L1) {
            standard.description = text;
        }
    });
}

void readCrossModuleAnalysis(QXmlStreamReader& xml, CrossModuleAnalysis& analysis, const TextExpander& expand)
{
    readRecord(xml, u"crossModuleAnalysis", [&](QStringView name) {
        if (name == "exe"_L1) {
            analysis.exe = QDir::cleanPath(expand(ToForwardSlashes(xml.readElementText())));
        } else if (name == "exeargs"_L1) {
            analysis.exeArgs = splitAtWhiteSpace(xml.readElementText());
        }
    });
}

void readPage(QXmlStreamReader& xml, PageData& page, const QString& element, const TextExpander& expand)
{
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
}

template <typename Record>
Record& add(std::vector<std::unique_ptr<Record>>& list)
{
    return *list.emplace_back(std::make_unique<Record>());
}

} // namespace

void KOVRASettingsFile::ReadFile(const QString& name)
{
    const QString located = LocateFile(name, appRegistry->values.xmlArea);
    appRegistry->Trace(u"KOVRASettingsFile::ReadFile="_s, located);
    file.setFileName(located);
    reportsPages.clear();
    applicationPages.clear();
    lastError = {};
    const QFileInfo info(located);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        appRegistry->Trace(u"KOVRASettingsFile::ReadFile: "_s,
                           located + (!info.exists()   ? u": it does not exist"_s
                                      : !info.isFile() ? u": it is not a file"_s
                                                       : u": "_s + file.errorString()));
        return;
    }
    const QByteArray document = file.readAll();
    file.close();
    readDocument(document, appRegistry->places());
    if (lastError.line > 0) {
        appRegistry->Trace(
            u"KOVRASettingsFile::ReadFile: "_s,
            u"%1:%2:%3: %4"_s.arg(located).arg(lastError.line).arg(lastError.column).arg(lastError.reason));
    }
}

bool KOVRASettingsFile::hasConversionTypes() const
{
    return std::ranges::any_of(projectCreators, [](const auto& creator) { return !creator->name.isEmpty(); });
}

void KOVRASettingsFile::readDocument(const QByteArray& document, const Places& places)
{
    const QStringList environment = QProcess::systemEnvironment();
    const TextExpander expand = [&](const QString& text) { return ExpandPlaceholders(text, places, environment); };
    QXmlStreamReader xml(document);
    while (!xml.atEnd() && !xml.hasError()) {
        if (readToken(xml) != QXmlStreamReader::StartElement) {
            continue;
        }
        const QString element = xml.name().toString();
        if (element == "reportsPage"_L1 || element == "applicationPage"_L1 || element == "display_options"_L1) {
            PageData& page = add(element == "reportsPage"_L1 ? reportsPages : applicationPages);
            if (element != "display_options"_L1) {
                page.titleAttribute = xml.attributes().value("title"_L1).toString();
            }
            readPage(xml, page, element, expand);
        } else if (element == "codingStandard"_L1) {
            readCodingStandard(xml, add(codingStandards), expand);
        } else if (element == "crossModuleAnalysis"_L1) {
            readCrossModuleAnalysis(xml, add(crossModuleAnalyses), expand);
        } else if (element == "compliance_module"_L1) {
            readComplianceModule(xml, add(complianceModules), expand);
        } else if (element == "projectCreator"_L1) {
            readProjectCreator(xml, add(projectCreators), expand);
        }
    }
    if (xml.hasError()) {
        lastError = {xml.lineNumber(), xml.columnNumber(), xml.errorString()};
    }
}

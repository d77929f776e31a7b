// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/ApplicationRecord.h"
#include "definitions/DefinitionRecords.h"
#include "definitions/Placeholders.h"
#include "definitions/TextExpander.h"
#include "definitions/TraceFunction.h"

#include <QFile>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class PageData;
class QXmlStreamReader;

/// Reads a page of launcher buttons, at whose start element the reader stands, up to its end element.
using PageReader = std::function<std::shared_ptr<PageData>(QXmlStreamReader& xml, const TextExpander& expand)>;

/// The definitions file: all that varies between installations. Records keep the document's order and live as long as
/// this object.
class KOVRASettingsFile
{
public:
    /// Where and why reading stopped; line 0 when it did not.
    struct ReadError
    {
        qint64 line = 0;
        qint64 column = 0;
        QString reason;
    };

    /// What reading needs to know of the program.
    struct Context
    {
        Places places = {};
        /// The folder of the suite's definitions, where a file is looked for that is not where its name says.
        QString xmlArea = {};
        /// Without one, what the launchers of the pages run is read into applications.
        PageReader readPage = {};
        /// Told of what the reader passes over; without one nothing is checked.
        std::function<void(qint64 line, const QString& text)> remark = {};
        TraceFunction trace = {};
    };

    /// Locates and reads the file. What cannot be read leaves the lists as far as they were filled; lastError tells.
    void ReadFile(const QString& name, const Context& context);
    /// Adds the records of a document, placeholders expanded. Reading ends silently at the first XML error.
    void readDocument(const QByteArray& document, const Context& context);

    /// True when there is a conversion type that can be chosen: a file that was cut short may hold one without a name.
    bool hasConversionTypes() const;
    /// The option files of the coding standards that are in force, each standard's in the order of its fields.
    QStringList standardFiles() const;

    std::vector<std::shared_ptr<PageData>> reportsPages;
    std::vector<std::shared_ptr<PageData>> applicationPages;
    /// The launchers, where there is no window for their pages.
    std::vector<std::unique_ptr<ApplicationRecord>> applications;
    std::vector<std::unique_ptr<CodingStandard>> codingStandards;
    std::vector<std::unique_ptr<CrossModuleAnalysis>> crossModuleAnalyses;
    std::vector<std::unique_ptr<ProjectCreatorData>> projectCreators;
    std::vector<std::unique_ptr<ComplianceModule>> complianceModules;
    QFile file;
    ReadError lastError;

private:
    void readElements(const QByteArray& document, const Context& context, const TextExpander& expand);
};

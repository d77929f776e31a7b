// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/DefinitionRecords.h"
#include "definitions/PageData.h"

#include <QFile>
#include <QString>

#include <memory>
#include <vector>

struct Places;

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

    /// Locates and reads the file. What cannot be read leaves the lists as far as they were filled; lastError tells.
    void ReadFile(const QString& name);
    /// Adds the records of a document, placeholders expanded. Reading ends silently at the first XML error.
    void readDocument(const QByteArray& document, const Places& places);

    /// True when there is a conversion type that can be chosen: a file that was cut short may hold one without a name.
    bool hasConversionTypes() const;

    std::vector<std::unique_ptr<PageData>> reportsPages;
    std::vector<std::unique_ptr<PageData>> applicationPages;
    std::vector<std::unique_ptr<CodingStandard>> codingStandards;
    std::vector<std::unique_ptr<CrossModuleAnalysis>> crossModuleAnalyses;
    std::vector<std::unique_ptr<ProjectCreatorData>> projectCreators;
    std::vector<std::unique_ptr<ComplianceModule>> complianceModules;
    QFile file;
    ReadError lastError;
};

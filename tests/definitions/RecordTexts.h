// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/DefinitionRecords.h"

#include <QVariant>

#include <utility>
#include <vector>

class PageData;

/// Short names of a record's members, divided by blanks, and their values.
using Facts = std::pair<QString, QVariantList>;

Facts facts(const ArgumentDefinition& field);
Facts facts(const ProjectCreatorData& type);
Facts facts(const ComplianceModule& module);
Facts facts(const CodingStandard& standard);
Facts facts(const CrossModuleAnalysis& analysis);
Facts facts(const PageData& page);

/// All that was read into records, each in brackets, for a comparison that prints what differs.
template <typename Pointer>
QString described(const std::vector<Pointer>& records)
{
    QStringList texts;
    // Not asked where there is nothing to describe, as a record describes its fields in turn.
    const QVariantList unread = records.empty() ? QVariantList() : facts(typename Pointer::element_type()).second;
    for (const auto& record : records) {
        const auto& [names, values] = facts(*record);
        QStringList words;
        for (qsizetype i = 0; i < values.size(); ++i) {
            if (values[i] != unread[i]) {
                words += names.section(u' ', int(i), int(i)) + u'=' + values[i].toString();
            }
        }
        texts += u'[' + words.join(u' ') + u']';
    }
    return texts.join(QString());
}

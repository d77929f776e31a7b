// SPDX-License-Identifier: MIT
#include "ProjectContext.h"
#include "../Notices.h"
#include "Condition.h"
#include "MacroExpander.h"
#include "PathFinder.h"
#include "XmlElement.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// What is written as %3B is a semicolon that separates nothing.
QString unescaped(QString text)
{
    static const QRegularExpression escape(u"%([0-9A-Fa-f]{2})"_s);
    qsizetype position = 0;
    for (QRegularExpressionMatch match; (position = text.indexOf(escape, position, &match)) >= 0; ++position) {
        text.replace(position, 3, QChar(match.captured(1).toUShort(nullptr, 16)));
    }
    return text;
}

} // namespace

QString ProjectContext::expand(const QString& text, const QString& file) const
{
    return MacroExpander(properties, file).expand(text);
}

bool ProjectContext::holds(const XmlElement& element, const QString& file, const QString& folder,
                           const std::function<QString(const QString&)>& metadata) const
{
    const QString condition = element.attribute(u"Condition"_s);
    const MacroExpander macros(properties, file, MacroExpander::Purpose::Condition);
    const std::optional<bool> result = evaluateCondition(
        condition, {.expand =
                        [&](const QString& text) {
                            const QString expanded = macros.expand(text);
                            return metadata ? metadata(expanded) : expanded;
                        },
                    .exists =
                        [&](const QString& path) {
                            return !UnknownMacros::isIn(path) && QFileInfo::exists(paths.find(folder, path));
                        }});
    if (!result) {
        notices.leaveOut(file, element.line, u"<%1>"_s.arg(element.name),
                         u"its condition is not understood: %1"_s.arg(condition));
    }
    return result.value_or(false);
}

QStringList ProjectContext::entries(const Setting& list) const
{
    QStringList result;
    const QStringList parts = list.text.split(u';');
    for (const QString& part : parts) {
        const QString entry = part.trimmed();
        if (UnknownMacros::isIn(entry)) {
            if (!UnknownMacros::areTheCompilers(entry)) {
                notices.leaveOut(list.file, list.line, u"\"%1\""_s.arg(UnknownMacros::written(entry)),
                                 u"%1 is unknown"_s.arg(UnknownMacros::in(entry).join(", "_L1)));
            }
        } else if (!entry.isEmpty()) {
            result += unescaped(entry);
        }
    }
    return result;
}

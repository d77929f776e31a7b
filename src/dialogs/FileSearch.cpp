// SPDX-License-Identifier: MIT
#include "dialogs/FileSearch.h"

#include <QDir>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isPlainSuffix(QStringView pattern)
{
    const auto isSpecial = [](QChar character) {
        return character == u'*' || character == u'?' || character == u'[' || character == u'\\';
    };
    return pattern.size() > 1 && pattern.startsWith(u'*') && std::ranges::none_of(pattern.sliced(1), isSpecial);
}

} // namespace

FileSearch::FileSearch(const QStringList& wildcards)
{
    for (const QString& wildcard : wildcards) {
        if (isPlainSuffix(wildcard)) {
            patterns.push_back({wildcard.sliced(1), {}});
        } else {
            patterns.push_back({{},
                                QRegularExpression(QRegularExpression::wildcardToRegularExpression(wildcard),
                                                   QRegularExpression::CaseInsensitiveOption)});
        }
    }
}

bool FileSearch::matches(const QString& name) const
{
    return std::ranges::any_of(patterns, [&name](const Pattern& pattern) {
        return pattern.suffix.isEmpty() ? pattern.expression.match(name).hasMatch()
                                        : name.endsWith(pattern.suffix, Qt::CaseInsensitive);
    });
}

bool FileSearch::isNew(const QString& name, QSet<QString>& told)
{
    const qsizetype before = told.size();
    told.insert(name);
    return told.size() > before;
}

void FileSearch::run(const QString& folder, Listener& listener) const
{
    std::vector<QString> pending{QDir(folder).absolutePath()};
    while (!pending.empty()) {
        const QString current = std::move(pending.back());
        pending.pop_back();
        listener.folderEntered(current);
        std::vector<QString> subFolders;
        if (!list(current, listener, subFolders) ||
            !std::ranges::all_of(subFolders, [&listener](const QString&) { return listener.goOn(); })) {
            return;
        }
        std::move(subFolders.rbegin(), subFolders.rend(), std::back_inserter(pending));
    }
}

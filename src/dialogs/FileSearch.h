// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// Walks a folder and all below it for files whose names match wildcard patterns. Hidden entries and symbolic links are
/// passed over; a folder that can not be read holds nothing. Files come before the subfolders of their folder. No path
/// is told twice, though a folder that changes meanwhile may give a name twice.
class FileSearch
{
public:
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void folderEntered(const QString& absolutePath) = 0;
        /// Called for every matching file and every subfolder; false ends the search.
        virtual bool goOn() = 0;
        /// Called now and then for what does not match; false ends the search.
        virtual bool keepAlive() { return true; }
        virtual void fileFound(const QString& absolutePath) = 0;
    };

    explicit FileSearch(const QStringList& wildcards);

    void run(const QString& folder, Listener& listener) const;

private:
    /// A pattern of the form "*text" needs no regular expression.
    struct Pattern
    {
        QString suffix;
        QRegularExpression expression;
    };

    bool matches(const QString& name) const;
    /// Takes a name into those that a folder has told of; false when it was among them.
    static bool isNew(const QString& name, QSet<QString>& told);
    /// How many entries may pass before the listener hears of it.
    static constexpr int entriesPerSign = 256;

    /// Tells of the files that match and gives the subfolders; false when the listener has ended the search.
    bool list(const QString& folder, Listener& listener, std::vector<QString>& subFolders) const;

    std::vector<Pattern> patterns;
};

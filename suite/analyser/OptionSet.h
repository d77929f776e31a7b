// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

struct AnalysisOptions;

/// What one set of options comes to for cppcheck: the words on its command line, and the compiler command that its
/// compilation database gets. Kept as a JSON file that the jobs read.
class OptionSet
{
public:
    OptionSet() = default;
    /// version is the analyser's; another one may find something else in the same source.
    OptionSet(const AnalysisOptions& options, const QString& version);

    /// The language of sources whose names tell none: "c" or "c++".
    void setLanguage(const QString& language) { arguments += QStringLiteral("--language=") + language; }
    /// Defines that can not be told in a command, as the text of a header; empty when there are none.
    const QByteArray& header() const { return headerText; }
    /// The file that header() was written to.
    void setHeader(const QString& path) { arguments += QStringLiteral("--include=") + path; }

    /// The words on cppcheck's command line in one text, for sets whose sources one process may analyse. Empty where it
    /// may not: what addons and the checks of a whole run say belongs to no source then.
    QString sharedArguments() const;
    bool asksForMissingIncludes() const;

    QByteArray toJson() const;
    /// Throws a Failure when the file is none of ours.
    static OptionSet fromFile(const QString& path);

    QStringList arguments;
    QString command;
    /// The folders that cppcheck searches for headers, and the files that it includes first.
    QStringList folders;
    QStringList forced;
    /// Where the compiler looks for what belongs to the system, which cppcheck does not read.
    QStringList systemFolders;
    /// The metrics name the analyser that a project is for.
    bool forC = false;

private:
    void addDefines(const QStringList& defines);
    void addFolders(const AnalysisOptions& options);

    QByteArray headerText;
    QString analyserVersion;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// Finds the headers that cppcheck reads for a source: every #include that it can open, whatever conditions stand
/// around it, beside the including file first and then in the folders. A compiler's list would name the system's
/// headers too, which cppcheck does not read, and takes longer to make than a small source takes to analyse.
class IncludeScan
{
public:
    explicit IncludeScan(QStringList searchedFolders);

    /// The file itself and all that it includes, directly or not; absolute.
    QStringList filesOf(const QStringList& files);
    /// What filesOf() found no file for: names to look for in the folders, and absolute paths.
    QStringList missing() const { return {missingFiles.cbegin(), missingFiles.cend()}; }
    /// The names among them that stand in quotes, as they are written.
    const QSet<QString>& missingQuoted() const { return quotedNames; }
    /// True when there is a file for one of these by now, such as a header that a build has written since.
    bool wouldFind(const QStringList& missing);

private:
    void noteMissing(const QString& name, bool isQuoted, const QString& includer);
    QString find(const QString& name, bool isQuoted, const QString& includer);
    bool isFile(const QString& path);

    QStringList folders;
    QHash<QString, bool> knownFiles;
    QSet<QString> missingFiles;
    QSet<QString> quotedNames;
};

/// "target: files" as make and Ninja read it.
QByteArray dependencyRule(const QString& target, const QStringList& files);

// SPDX-License-Identifier: MIT
#pragma once

#include "DatabaseEntry.h"
#include "DatabaseStream.h"

#include <QHash>
#include <QString>

class SourceCollector;

/// Takes the events of RapidJSON's reader and hands each complete entry on.
class DatabaseReader
{
public:
    DatabaseReader(const QString& fileName, DatabaseStream& source, SourceCollector& result);

    /// Whether what was read so far begins as a database does.
    bool inArray() const { return depth > 0; }
    /// For a file of another kind.
    [[noreturn]] void refuse() const;

    // NOLINTBEGIN(readability-identifier-naming): RapidJSON's names.
    bool Null() { return scalar(false); }
    bool Bool(bool) { return scalar(true); }
    bool Int(int) { return scalar(true); }
    bool Uint(unsigned) { return scalar(true); }
    bool Int64(int64_t) { return scalar(true); }
    bool Uint64(uint64_t) { return scalar(true); }
    bool Double(double) { return scalar(true); }
    bool RawNumber(const char*, size_t, bool) { return scalar(true); }
    bool String(const char* text, size_t length, bool copy);
    bool StartObject();
    bool Key(const char* text, size_t length, bool copy);
    bool EndObject(size_t);
    bool StartArray();
    bool EndArray(size_t);
    // NOLINTEND(readability-identifier-naming)

private:
    enum class Field { Other, Directory, File, Command, Arguments, Output };

    bool scalar(bool isValue);
    void enter();
    bool inEntry() const { return depth == 2; }
    bool isArgument() const { return depth == 3 && field == Field::Arguments; }
    void badEntry(const QString& reason) const;
    void finishEntry();
    int settings(const QString& file, bool windows);
    int target();
    QString place() const;
    const QString& directoryPath(bool windows);

    QString name;
    QString ownFolder;
    DatabaseStream& stream;
    SourceCollector& collector;
    DatabaseEntry entry;
    Field field = Field::Other;
    int depth = 0;
    qsizetype index = -1;
    QByteArray lastDirectory;
    QString lastDirectoryPath;
    QByteArray lastObjectFolder;
    int lastTarget = 0;
    QHash<size_t, int> knownSettings;
};

// SPDX-License-Identifier: MIT
#include "DatabaseReader.h"
#include "Failure.h"
#include "Paths.h"
#include "SourceCollector.h"
#include "TargetName.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 100;

QString fieldName(int field)
{
    static const QStringList names{{}, u"directory"_s, u"file"_s, u"command"_s, u"arguments"_s, u"output"_s};
    return names[field];
}

} // namespace

DatabaseReader::DatabaseReader(const QString& fileName, DatabaseStream& source, SourceCollector& result)
    : name(fileName)
    , ownFolder(QFileInfo(fileName).absolutePath())
    , stream(source)
    , collector(result)
{
}

QString DatabaseReader::place() const
{
    return u"%1:%2"_s.arg(name).arg(entry.line);
}

void DatabaseReader::badEntry(const QString& reason) const
{
    throw Failure{
        u"%1: entry %2 %3. Generate the compilation database again."_s.arg(place()).arg(index + 1).arg(reason)};
}

void DatabaseReader::refuse() const
{
    throw Failure{u"%1:1:1: not a compilation database: the file must hold a JSON array."_s.arg(name)};
}

void DatabaseReader::enter()
{
    if (++depth > deepest) {
        throw Failure{u"%1:%2: nested too deeply for a compilation database."_s.arg(name).arg(stream.line())};
    }
}

bool DatabaseReader::scalar(bool isValue)
{
    if (depth == 0) {
        refuse();
    }
    if (depth == 1) {
        entry.line = stream.line();
        ++index;
        badEntry(u"is not an object"_s);
    }
    if (isValue && field != Field::Other && (inEntry() || isArgument())) {
        badEntry(u"has a \"%1\" of the wrong type"_s.arg(fieldName(int(field))));
    }
    return true;
}

bool DatabaseReader::String(const char* text, size_t length, bool)
{
    const QByteArrayView value(text, qsizetype(length));
    if (depth < 2) {
        return scalar(true);
    }
    if (isArgument()) {
        entry.arguments.add(value);
    }
    if (!inEntry()) {
        return true;
    }
    switch (field) {
    case Field::Directory:
        entry.directory.append(value);
        break;
    case Field::File:
        entry.file.append(value);
        break;
    case Field::Command:
        entry.command.append(value);
        break;
    case Field::Output:
        entry.output.append(value);
        break;
    case Field::Arguments:
        return scalar(true);
    case Field::Other:
        break;
    }
    return true;
}

bool DatabaseReader::StartObject()
{
    if (depth == 0 || (inEntry() && field != Field::Other) || isArgument()) {
        return scalar(true);
    }
    if (depth == 1) {
        entry.clear();
        entry.line = stream.line();
        field = Field::Other;
        ++index;
    }
    enter();
    return true;
}

bool DatabaseReader::Key(const char* text, size_t length, bool)
{
    if (!inEntry()) {
        return true;
    }
    const QByteArrayView key(text, qsizetype(length));
    field = key == "directory"   ? Field::Directory
            : key == "file"      ? Field::File
            : key == "command"   ? Field::Command
            : key == "arguments" ? Field::Arguments
            : key == "output"    ? Field::Output
                                 : Field::Other;
    // Of a key that comes twice the last holds.
    if (field == Field::Directory) {
        entry.directory.resize(0);
    } else if (field == Field::File) {
        entry.file.resize(0);
    } else if (field == Field::Command) {
        entry.command.resize(0);
    } else if (field == Field::Output) {
        entry.output.resize(0);
    }
    return true;
}

bool DatabaseReader::EndObject(size_t)
{
    if (--depth == 1) {
        finishEntry();
    }
    return true;
}

bool DatabaseReader::StartArray()
{
    if (depth == 1 || isArgument()) {
        return scalar(true);
    }
    if (inEntry() && field == Field::Arguments) {
        entry.arguments.clear();
        entry.hasArguments = true;
    } else if (inEntry() && field != Field::Other) {
        return scalar(true);
    }
    enter();
    return true;
}

bool DatabaseReader::EndArray(size_t)
{
    --depth;
    return true;
}

const QString& DatabaseReader::directoryPath(bool windows)
{
    if (lastDirectoryPath.isNull() || entry.directory != lastDirectory) {
        lastDirectory = entry.directory;
        lastDirectory.detach();
        lastDirectoryPath = Paths::absolute(ownFolder, QString::fromUtf8(entry.directory), windows);
    }
    return lastDirectoryPath;
}

void DatabaseReader::finishEntry()
{
    if (entry.file.isEmpty()) {
        badEntry(u"has no \"file\""_s);
    }
    const bool windows = entry.isWindows();
    if (!entry.hasArguments) {
        const auto rules = windows ? CommandWords::Rules::Windows : CommandWords::Rules::Shell;
        if (!entry.arguments.split(entry.command, rules)) {
            collector.complain(u"\"command\" has a quote that is not closed"_s,
                               u"%1: entry %2, %3"_s.arg(place()).arg(index + 1).arg(QString::fromUtf8(entry.file)));
        }
    }
    const QString file = QString::fromUtf8(entry.file);
    const QString path = Paths::absolute(directoryPath(windows), file, windows);
    const qsizetype before = knownSettings.size();
    const int number = settings(file, windows);
    const bool isNew = knownSettings.size() != before;
    if (path.contains(QChar::ReplacementCharacter) || (isNew && !entry.arguments.isUtf8())) {
        collector.complain(u"an entry is not UTF-8, and some letters are lost"_s,
                           u"%1: entry %2, %3"_s.arg(place()).arg(index + 1).arg(path));
    }
    collector.add(path, number, target());
}

int DatabaseReader::target()
{
    // Its name is told by the folders alone, and the next entry has mostly the same.
    const QByteArrayView object = entry.objectFile();
    const QByteArrayView folder = object.first(object.size() - DatabaseEntry::nameOf(object).size());
    if (folder != lastObjectFolder) {
        lastObjectFolder = folder.toByteArray();
        lastTarget = collector.targetNumber(targetOfOutput(QString::fromUtf8(folder)));
    }
    return lastTarget;
}

int DatabaseReader::settings(const QString& file, bool windows)
{
    const size_t language = size_t(languageOfFile(Paths::nameOf(file), windows));
    const size_t key = qHashMulti(entry.key(), language, windows);
    const auto known = knownSettings.constFind(key);
    if (known != knownSettings.cend()) {
        return *known;
    }
    const int number = collector.settingsOf({.directory = directoryPath(windows),
                                             .file = file,
                                             .arguments = entry.arguments.texts(),
                                             .target = {},
                                             .windows = windows});
    knownSettings.insert(key, number);
    return number;
}

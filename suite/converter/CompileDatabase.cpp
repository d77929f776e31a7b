// SPDX-License-Identifier: MIT
#include "CompileDatabase.h"
#include "CommandSplitter.h"
#include "Failure.h"
#include "SourceLists.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// The parser reports how far it had read, the character at fault included.
QString position(const QByteArray& text, qsizetype offset)
{
    const QByteArrayView before = QByteArrayView(text).first(std::clamp(offset - 1, qsizetype(0), text.size()));
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    return u"%1:%2"_s.arg(before.count('\n') + 1).arg(before.size() - lineStart + 1);
}

Failure badEntry(const QString& fileName, qsizetype index, const QString& reason)
{
    return {u"%1: entry %2 %3. Generate the compilation database again."_s.arg(fileName, QString::number(index + 1),
                                                                               reason)};
}

QString below(const QString& directory, const QString& path)
{
    // A leading colon is a name like any other here, not one of Qt's own resources.
    const bool isAbsolute = QDir::isAbsolutePath(path) && !path.startsWith(u':');
    return QDir::cleanPath(isAbsolute ? path : directory + u'/' + path);
}

// The value of an option that is either joined to it or the next word; null when the word is another option.
QString optionValue(const QStringList& words, qsizetype& i, QStringView option)
{
    const QString& word = words[i];
    if (!word.startsWith(option)) {
        return {};
    }
    if (word.size() > option.size()) {
        return word.sliced(option.size());
    }
    return i + 1 < words.size() ? words[++i] : QString();
}

// Elsewhere /Include may be the folder of a source.
bool isSlashCompiler(const QString& compiler)
{
    static const QRegularExpression name(u"(^|[/\\\\])(cl|clang-cl|icl)(\\.exe)?$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return name.match(compiler).hasMatch();
}

void readOptions(const QStringList& words, const QString& directory, SourceUnit& unit)
{
    static constexpr std::array includeOptions = {u"-isystem", u"-iquote", u"-idirafter", u"-I"};
    const bool hasSlashOptions = !words.isEmpty() && isSlashCompiler(words.first());
    for (qsizetype i = 1; i < words.size(); ++i) {
        if (const QString define = optionValue(words, i, u"-D"); !define.isEmpty()) {
            unit.defines += define;
            continue;
        }
        for (const char16_t* option : includeOptions) {
            if (const QString folder = optionValue(words, i, option); !folder.isEmpty()) {
                unit.includeFolders += below(directory, folder);
                break;
            }
        }
        if (const QString folder = hasSlashOptions ? optionValue(words, i, u"/I") : QString(); !folder.isEmpty()) {
            unit.includeFolders += below(directory, folder);
        }
    }
}

SourceUnit readEntry(const QJsonValue& value, const QString& fileName, const QString& ownFolder, qsizetype index)
{
    if (!value.isObject()) {
        throw badEntry(fileName, index, u"is not an object"_s);
    }
    const QJsonObject entry = value.toObject();
    const QString file = entry["file"_L1].toString();
    if (file.isEmpty()) {
        throw badEntry(fileName, index, u"has no \"file\""_s);
    }
    const QString directory = below(ownFolder, entry["directory"_L1].toString());
    SourceUnit unit{.path = below(directory, file), .includeFolders = {}, .defines = {}};
    QStringList words;
    if (entry["arguments"_L1].isArray()) {
        const QJsonArray arguments = entry["arguments"_L1].toArray();
        for (const auto& argument : arguments) {
            words += argument.toString();
        }
    } else {
        words = splitCommand(entry["command"_L1].toString());
    }
    readOptions(words, directory, unit);
    return unit;
}

} // namespace

SourceUnits readCompileDatabase(const QString& fileName)
{
    QFile file(fileName);
    openText(file, u"compilation database"_s);
    const QByteArray text = file.readAll();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        throw Failure{u"%1:%2: %3. Generate the compilation database again."_s.arg(
            fileName, position(text, error.offset), error.errorString())};
    }
    if (!document.isArray()) {
        throw Failure{u"%1:1:1: not a compilation database: the file must hold a JSON array."_s.arg(fileName)};
    }
    const QJsonArray entries = document.array();
    const QString ownFolder = QFileInfo(fileName).absolutePath();
    SourceUnits units;
    units.reserve(entries.size());
    for (qsizetype i = 0; i < entries.size(); ++i) {
        units += readEntry(entries[i], fileName, ownFolder, i);
    }
    return units;
}

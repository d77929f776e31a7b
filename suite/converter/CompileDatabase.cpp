// SPDX-License-Identifier: MIT
#include "CompileDatabase.h"
#include "DatabaseReader.h"
#include "Failure.h"
#include "FilePosition.h"
#include "SourceLists.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView usualName("compile_commands.json");

void refuseUtf16(QFile& file)
{
    const QByteArray start = file.peek(2);
    if (start == "\xFF\xFE" || start == "\xFE\xFF") {
        throw Failure{u"%1: is written in UTF-16. Save it as UTF-8."_s.arg(file.fileName())};
    }
}

} // namespace

void CompileDatabase::read(const QString& fileName, SourceCollector& collector)
{
    QFile file(fileName);
    openText(file, u"compilation database"_s);
    file.setTextModeEnabled(false);
    refuseUtf16(file);
    DatabaseStream stream(file);
    DatabaseReader handler(fileName, stream, collector);
    rapidjson::GenericReader<DatabaseEncoding, rapidjson::UTF8<>> reader;
    const rapidjson::ParseResult result = reader.Parse(stream, handler);
    if (file.error() != QFileDevice::NoError) {
        throw Failure{u"%1: can not be read (%2)."_s.arg(fileName, file.errorString())};
    }
    // A project or a list of files, say, named by mistake: generating it again would not help.
    if (result.Code() == rapidjson::kParseErrorValueInvalid && !handler.inArray()) {
        handler.refuse();
    }
    if (result.IsError()) {
        throw Failure{u"%1: %2 Generate the compilation database again."_s.arg(
            FilePosition::columnOf(fileName, result.Offset()),
            QString::fromLatin1(rapidjson::GetParseError_En(result.Code())))};
    }
}

QString CompileDatabase::find(const QString& fileOrFolder, QStringList& others)
{
    if (!QFileInfo(fileOrFolder).isDir()) {
        return fileOrFolder;
    }
    const QDir folder(fileOrFolder);
    QStringList found;
    const auto look = [&](const QDir& place) {
        if (const QFileInfo file(place.filePath(usualName)); file.isFile()) {
            found += file.filePath();
        }
    };
    look(folder);
    QStringList below = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
    std::stable_partition(below.begin(), below.end(), [](const QString& name) { return name.startsWith("build"_L1); });
    for (const QString& name : std::as_const(below)) {
        look(QDir(folder.filePath(name)));
    }
    if (found.isEmpty()) {
        throw Failure{u"%1: there is no %2 in this folder or one level below. Name the build folder or the file."_s.arg(
            fileOrFolder, usualName)};
    }
    others = found.mid(1);
    return found.first();
}

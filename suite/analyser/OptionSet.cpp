// SPDX-License-Identifier: MIT
#include "OptionSet.h"
#include "AnalysisOptions.h"
#include "Failure.h"
#include "LibraryHints.h"
#include "ResultFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// As cppcheck takes a command apart: quotes stand around the value alone, never around the whole word.
QString quoted(QString value)
{
    static const QRegularExpression special(u"[^A-Za-z0-9_./+:,@-]"_s);
    if (!value.contains(special)) {
        return value;
    }
    return u'"' + value.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
}

// cppcheck keeps its defines in one text with semicolons between them.
bool needsHeader(const QString& define)
{
    return define.contains(u';') || define.contains(u'\n');
}

QByteArray headerLine(const QString& define)
{
    const qsizetype equals = define.indexOf(u'=');
    const QString value = equals < 0 ? u"1"_s : define.sliced(equals + 1);
    return "#define " + define.left(equals).toUtf8() + ' ' + value.toUtf8() + '\n';
}

} // namespace

OptionSet::OptionSet(const AnalysisOptions& options, const QString& version)
    : command(options.compiler.isEmpty() ? u"cc"_s : quoted(options.compiler))
    , forced(options.macroFiles + options.forcedIncludes)
    , analyserVersion(version)
{
    QStringList checks = options.checks;
    // Asked over the whole program later: of a single source nearly everything is unused.
    checks.removeAll(u"unusedFunction"_s);
    if (checks.removeAll(u"all"_s) > 0) {
        checks += {u"information"_s, u"missingInclude"_s};
    }
    arguments += u"--enable="_s + checks.join(u',');
    for (const QString& library : LibraryHints::libraries(options)) {
        arguments += u"--library="_s + library;
    }
    const QString platform = LibraryHints::platform(options);
    if (!platform.isEmpty()) {
        arguments += u"--platform="_s + platform;
    }
    if (options.inconclusive) {
        arguments += u"--inconclusive"_s;
    }
    for (const QString& addon : options.addons) {
        arguments += u"--addon="_s + addon;
    }
    if (!options.language.isEmpty()) {
        setLanguage(options.language);
    }
    for (const QString& file : std::as_const(forced)) {
        arguments += u"--include="_s + file;
    }
    addDefines(options.defines + LibraryHints::defines(options));
    for (const QString& name : options.undefines) {
        command += u" -U"_s + name;
    }
    addFolders(options);
}

void OptionSet::addDefines(const QStringList& defines)
{
    for (const QString& define : defines) {
        if (needsHeader(define)) {
            headerText += headerLine(define);
            continue;
        }
        const qsizetype equals = define.indexOf(u'=');
        command += u" -D"_s + QString(define.left(equals)).remove(u' ');
        if (equals >= 0) {
            command += u'=' + quoted(define.sliced(equals + 1));
        }
    }
}

void OptionSet::addFolders(const AnalysisOptions& options)
{
    // The order in which a compiler searches. Folders of the system are told, and cppcheck passes over them.
    for (const FolderKind kind : {FolderKind::Quote, FolderKind::Normal, FolderKind::System, FolderKind::After}) {
        for (const IncludeFolder& folder : options.folders) {
            if (folder.kind == kind) {
                const bool isSearched = kind != FolderKind::System;
                command += (isSearched ? u" -I"_s : u" -isystem "_s) + quoted(folder.path);
                (isSearched ? folders : systemFolders) += folder.path;
            }
        }
    }
    systemFolders += options.builtinFolders;
    for (const QString& flag : options.target) {
        command += u' ' + flag;
    }
    if (!options.standard.isEmpty()) {
        command += u" -std="_s + options.standard;
    }
}

bool OptionSet::asksForMissingIncludes() const
{
    return std::ranges::any_of(arguments, [](const QString& word) {
        return word.startsWith("--enable="_L1) && word.contains("missingInclude"_L1);
    });
}

QString OptionSet::sharedArguments() const
{
    const bool isAlone = std::ranges::any_of(arguments, [](const QString& word) {
        return word.startsWith("--addon="_L1) ||
               (word.startsWith("--enable="_L1) && (word.contains("information"_L1) || word.contains("missing"_L1)));
    });
    return isAlone ? QString() : arguments.join(u'\n');
}

QByteArray OptionSet::toJson() const
{
    const QJsonObject object{{u"arguments"_s, QJsonArray::fromStringList(arguments)},
                             {u"command"_s, command},
                             {u"folders"_s, QJsonArray::fromStringList(folders)},
                             {u"forced"_s, QJsonArray::fromStringList(forced)},
                             {u"systemFolders"_s, QJsonArray::fromStringList(systemFolders)},
                             {u"forC"_s, forC},
                             {u"version"_s, analyserVersion}};
    return QJsonDocument(object).toJson();
}

OptionSet OptionSet::fromFile(const QString& path)
{
    const QJsonObject object = QJsonDocument::fromJson(ResultFile::read(path)).object();
    if (object.isEmpty()) {
        throw Failure{u"%1 can not be read. Start the analysis again, it writes this file."_s.arg(path)};
    }
    const auto list = [&object](const QString& key) { return object[key].toVariant().toStringList(); };
    OptionSet set;
    set.arguments = list(u"arguments"_s);
    set.command = object[u"command"_s].toString();
    set.folders = list(u"folders"_s);
    set.forced = list(u"forced"_s);
    set.systemFolders = list(u"systemFolders"_s);
    set.forC = object[u"forC"_s].toBool();
    return set;
}

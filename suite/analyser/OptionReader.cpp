// SPDX-License-Identifier: MIT
#include "OptionReader.h"
#include "Failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {

QString unquoted(const QString& text)
{
    const bool isQuoted = text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"');
    return isQuoted ? text.sliced(1, text.size() - 2) : text;
}

// Files of older converters are in the system's encoding.
QString decoded(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLocal8Bit(bytes) : text;
}

FolderKind folderKind(const QString& word)
{
    if (word == "quote"_L1) {
        return FolderKind::Quote;
    }
    if (word == "system"_L1) {
        return FolderKind::System;
    }
    return word == "after"_L1 ? FolderKind::After : FolderKind::Normal;
}

void addOnce(QStringList& list, const QString& commaSeparated)
{
    for (const QString& word : commaSeparated.split(u',', Qt::SkipEmptyParts)) {
        if (!list.contains(word.trimmed())) {
            list += word.trimmed();
        }
    }
}

} // namespace

void OptionReader::takeWords(const QStringList& words)
{
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString value = words.value(i + 1);
        if (words[i] == "-via"_L1) {
            readFile(value);
        } else if (words[i] == "-list"_L1) {
            readLines(value, true);
        } else if (words[i] == "-prj"_L1) {
            options.projectFile = value;
        } else if (!takeOption(words[i], value)) {
            continue;
        }
        ++i;
    }
}

void OptionReader::readFile(const QString& name)
{
    if (!name.isEmpty()) {
        readLines(name, false);
    }
}

bool OptionReader::isNew(const QString& name)
{
    const QString path = QDir::cleanPath(QFileInfo(name).absoluteFilePath());
    if (seen.contains(path)) {
        return false;
    }
    seen.insert(path);
    return true;
}

void OptionReader::readLines(const QString& name, bool isList)
{
    if (!isNew(name)) {
        return;
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        throw Failure{u"%1 can not be read: %2."_s.arg(name, file.errorString())};
    }
    options.files += name;
    const QStringList lines = decoded(file.readAll()).split(u'\n');
    for (const QString& line : lines) {
        takeLine(line.trimmed(), isList);
    }
}

void OptionReader::takeLine(const QString& line, bool isList)
{
    if (line.startsWith("*orv "_L1)) {
        const QString setting = line.sliced(5).trimmed();
        takeAnnotation(setting.section(u'=', 0, 0), unquoted(setting.section(u'=', 1)));
    } else if (line.startsWith(u'-')) {
        const QString option = line.section(u' ', 0, 0);
        const QString value = unquoted(line.section(u' ', 1).trimmed());
        if (option == "-via"_L1) {
            readFile(value);
        } else {
            takeOption(option, value);
        }
    } else if (isList && !line.isEmpty() && !line.startsWith(u'*')) {
        options.sources += {unquoted(line), options.outputFolder};
    }
}

bool OptionReader::takeOption(const QString& option, const QString& value)
{
    if (option == "-outputpath"_L1) {
        options.outputFolder = value;
    } else if (option == "-cmaf"_L1) {
        options.crossModuleFile = value;
    } else if (option == "-d"_L1 || option == "-u"_L1) {
        define(value, option == "-d"_L1);
    } else if (option == "-i"_L1) {
        if (!value.isEmpty()) {
            options.folders += {value, nextFolder};
        }
        nextFolder = FolderKind::Normal;
    } else if (option == "-fi"_L1) {
        options.forcedIncludes += value;
    } else {
        return options.messages.take(option, value);
    }
    return true;
}

void OptionReader::takeAnnotation(const QString& key, const QString& value)
{
    if (takeCompilerAnnotation(key, value)) {
        return;
    }
    if (key == "enable"_L1) {
        addOnce(options.checks, value);
    } else if (key == "disable"_L1) {
        const QStringList words = value.split(u',');
        options.checks.removeIf([&](const QString& check) { return words.contains(check); });
    } else if (key == "addon"_L1) {
        addOnce(options.addons, value);
    } else if (key == "library"_L1) {
        addOnce(options.libraries, value);
    } else if (key == "platform"_L1) {
        options.platform = value;
    } else if (key == "inconclusive"_L1) {
        options.inconclusive = value != "no"_L1;
    } else if (key == "errors"_L1) {
        options.messages.takeErrors(value);
    } else if (key == "module"_L1) {
        options.modules += value;
    }
}

bool OptionReader::takeCompilerAnnotation(const QString& key, const QString& value)
{
    if (key == "undefine"_L1) {
        define(value, false);
    } else if (key == "folder"_L1) {
        nextFolder = folderKind(value);
    } else if (key == "macros"_L1) {
        options.macroFiles += value;
    } else if (key == "standard"_L1) {
        options.standard = value;
    } else if (key == "language"_L1) {
        options.language = value;
    } else if (key == "target"_L1) {
        options.target += value;
    } else if (key == "builtin"_L1) {
        options.builtinFolders += value;
    } else if (key == "compiler"_L1) {
        options.compiler = value;
    } else {
        return false;
    }
    return true;
}

void OptionReader::define(const QString& text, bool isDefined)
{
    const QString name = text.left(text.indexOf(u'='));
    // A macro with arguments is the same macro whatever they are called.
    const QString key = name.left(name.indexOf(u'('));
    if (key.isEmpty()) {
        return;
    }
    if (!macros.contains(key)) {
        macroOrder += key;
    }
    macros.insert(key, {isDefined ? text : key, isDefined});
}

void OptionReader::finish()
{
    for (const QString& key : std::as_const(macroOrder)) {
        const Macro& macro = macros[key];
        (macro.isDefined ? options.defines : options.undefines) += macro.text;
    }
    macroOrder.clear();
}

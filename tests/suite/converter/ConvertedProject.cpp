// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

void ConvertedProject::writeDatabase(const QByteArray& entries) const
{
    const QJsonArray values = QJsonDocument::fromJson(entries).array();
    for (const auto& value : values) {
        const QString directory = value["directory"_L1].toString();
        const QString file = value["file"_L1].toString();
        const bool isHere = !file.startsWith(u'/') && !file.contains(u'\\') && !file.contains(u':');
        const QString name = u"work/"_s + (directory.isEmpty() ? file : directory + u'/' + file);
        if (isHere && !directory.startsWith(u'/') && !QFile::exists(path(name))) {
            write(name, "");
        }
    }
    write(u"work/db.json"_s, entries);
}

void ConvertedProject::writeCommand(const QString& file, const QString& command, const QString& directory) const
{
    QJsonObject entry{{u"file"_s, file}, {u"command"_s, command}};
    if (!directory.isEmpty()) {
        entry.insert(u"directory"_s, directory);
    }
    writeDatabase(QJsonDocument(QJsonArray{entry}).toJson());
}

void ConvertedProject::writeCommands(const QStringList& commands) const
{
    QJsonArray entries;
    for (const QString& command : commands) {
        entries += QJsonObject{{u"file"_s, command.section(u' ', -1)}, {u"command"_s, command}};
    }
    writeDatabase(QJsonDocument(entries).toJson());
}

ProgramResult ConvertedProject::convert(const QStringList& arguments) const
{
    QStringList all{u"--output"_s, work(u"p.prj"_s)};
    for (const auto& [option, value] : {std::pair{u"--analyser"_s, u"ORVCPP"_s}, {u"--compiler-macros"_s, u"0"_s}}) {
        if (!arguments.contains(option)) {
            all += {option, value};
        }
    }
    return runProgram(QStringLiteral(CONVERTER), all + arguments, {{u"LC_ALL"_s, u"C.UTF-8"_s}}, path(u"work"_s));
}

ProgramResult ConvertedProject::convertDatabase(const QStringList& more) const
{
    QStringList arguments{u"--compile-commands"_s, u"db.json"_s};
    if (!more.contains(u"--options"_s)) {
        arguments += {u"--options"_s, u"sub-projects"_s};
    }
    return convert(arguments + more);
}

QList<ConvertedProject::Part> ConvertedProject::parts() const
{
    QList<Part> result;
    Part root;
    const QStringList bodies = QString::fromUtf8(read(u"work/p.prj"_s)).split(u"StartProjectMarker\n"_s).mid(1);
    for (const QString& body : bodies) {
        QStringList lines = body.section(u"EndContainedFilesMarker"_s, 0, 0).split(u'\n', Qt::SkipEmptyParts);
        const auto value = [&](qsizetype i) { return lines.value(i).section(u'=', 1); };
        Part part{value(0), value(1), value(2), value(4), value(5), lines.mid(6)};
        part.files.removeIf([](const QString& line) { return line.startsWith(u"*"_s); });
        if (result.isEmpty() && root.name.isEmpty()) {
            root = part;
        }
        part.analyser = part.analyser == "inherit string"_L1 ? root.analyser : part.analyser;
        part.compiler = part.compiler == "inherit string"_L1 ? root.compiler : part.compiler;
        if (!part.files.isEmpty()) {
            result += part;
        }
    }
    return result;
}

QString ConvertedProject::files() const
{
    QStringList names;
    for (const Part& part : parts()) {
        names += part.files;
    }
    names.sort(Qt::CaseInsensitive);
    return names.join(u' ');
}

ConvertedProject::Part ConvertedProject::partOf(const QString& file) const
{
    for (const Part& part : parts()) {
        for (const QString& name : part.files) {
            if ((part.sourceDir + u'/' + name).endsWith(file)) {
                return part;
            }
        }
    }
    return {};
}

QStringList ConvertedProject::options(const QString& file) const
{
    QStringList result;
    for (const QString& line : QString::fromUtf8(read(file)).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith("-via "_L1)) {
            result += options(line.section(u'"', 1, 1));
        } else if (!line.startsWith("* "_L1)) {
            // Folders and headers, in whose separators the systems differ.
            const bool isPath =
                line.startsWith("-i "_L1) || line.startsWith("-fi "_L1) || line.startsWith("*orv macros="_L1);
            result += isPath ? QDir::fromNativeSeparators(line) : line;
        }
    }
    return result;
}

QStringList ConvertedProject::optionsOf(const QString& file) const
{
    QStringList result = options(partOf(file).analyser);
    result.removeIf([](const QString& line) { return line.startsWith("*orv database="_L1); });
    return result.replaceInStrings(path(u"work"_s), u"~"_s);
}

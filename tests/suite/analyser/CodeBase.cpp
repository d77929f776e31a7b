// SPDX-License-Identifier: MIT
#include "CodeBase.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView checks("--enable=warning,style,performance,portability");

QString joined(const QString& before, const QStringList& words, const QString& after = {})
{
    QString text;
    for (const QString& word : words) {
        text += before + word + after;
    }
    return text;
}

QStringList sortedLines(const QString& text)
{
    QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    lines.sort();
    lines.removeDuplicates();
    return lines;
}

} // namespace

CodeBase::CodeBase()
{
    QDir(path()).mkpath(u"bin"_s);
    for (const auto& name :
         {u"orv"_s, u"orvc"_s, u"orvcpp"_s, u"orvreport"_s, u"orvcount"_s, u"orvcma"_s, u"orvstatus"_s}) {
        placeProgram(QStringLiteral(NAMED_TOOL), u"bin/"_s + name);
    }
    placeProgram(QStringLiteral(ORVTOOL), u"bin/orvtool"_s);
}

void CodeBase::restoreProgram(const QString& name) const
{
    for (const auto& suffix : {u""_s, u".exe"_s}) {
        QFile::remove(path(u"bin/"_s + name + suffix));
    }
}

CodePart CodeBase::overrunning(const QStringList& files, const QByteArray& head) const
{
    for (const QString& file : files) {
        write(u"one/"_s + file, head + overrun);
    }
    return {.folder = u"one"_s, .files = files, .defines = {u"SIZE=3"_s}};
}

void CodeBase::project(const QList<CodePart>& parts, const QByteArray& messages) const
{
    const auto body = [this](const QString& name, const QString& options, const QString& more) {
        return u"StartProjectMarker\nname=%1\nsourceDir=%2\noutputDir=%3\nmessagePersonality=%4\n"
               "analyserPersonality=%5\ncompilerPersonality=inherit string\n%6EndContainedFilesMarker\n"_s.arg(
                   name, path(name), path(u"out/"_s + name), path(u"messages.p_s"_s), options, more);
    };
    write(u"messages.p_s"_s, messages);
    QString text = u"VersionTag 45\n"_s + body(u"."_s, u"default string"_s, u"*project=ORVCPP\n"_s);
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const CodePart& part = parts[i];
        const QString standard = part.standard.isEmpty() ? QString() : u"*orv standard="_s + part.standard + u'\n';
        const QString lines = part.options + joined(u"-d "_s, part.defines, u"\n"_s) +
                              joined(u"*orv undefine="_s, part.undefines, u"\n"_s) +
                              joined(u"-i \""_s + path() + u'/', part.includeFolders, u"\"\n"_s) + standard;
        const QString options = write(u"options/%1.p_a"_s.arg(i), lines.toUtf8());
        text += u"StartSubProjectMarker\n"_s + body(part.folder, options, joined({}, part.files, u"\n"_s)) +
                u"EndSubProjectMarker\n"_s;
    }
    write(u"p.prj"_s, (text + u"EndOfProjectFile\n"_s).toUtf8());
}

ProgramResult CodeBase::run(const QString& command, const QString& tool, const Variables& more) const
{
    return runProgram(path(u"bin/"_s + tool), QProcess::splitCommand(command), environment(more), path());
}

QStringList CodeBase::analyse(const QString& options) const
{
    static const QRegularExpression status(u"^\\[\\d+/\\d+\\] (.*)$"_s, QRegularExpression::MultilineOption);
    QStringList names;
    for (const QRegularExpressionMatch& told : status.globalMatch(run(u"analyse p.prj "_s + options).output)) {
        names += told.captured(1);
    }
    names.sort();
    return names;
}

QStringList CodeBase::messages() const
{
    QString text;
    for (QDirIterator files(path(u"out"_s), {u"*.err"_s}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         files.hasNext();) {
        text += QString::fromUtf8(read(files.next()));
    }
    return sortedLines(text);
}

QStringList CodeBase::messagesOfSources() const
{
    QStringList lines = messages();
    lines.removeIf([](const QString& line) { return line.endsWith("[unusedFunction]"_L1); });
    return lines;
}

QStringList CodeBase::messagesByHand(const QList<CodePart>& parts, const QStringList& options) const
{
    QJsonArray entries;
    for (const CodePart& part : parts) {
        // As CMake writes it. Of the other form, a list of words, cppcheck loses these quotes.
        const QString defines = joined(u" -D"_s, part.defines).replace(u'"', u"\\\""_s);
        const QString standard = part.standard.isEmpty() ? QString() : u" -std="_s + part.standard;
        const QString command = u"c++"_s + defines + joined(u" -U"_s, part.undefines) +
                                joined(u" -I"_s + path() + u'/', part.includeFolders) + standard + u" -c"_s;
        for (const QString& file : part.files) {
            entries += QJsonObject{{u"directory"_s, path(part.folder)}, {u"file"_s, file}, {u"command"_s, command}};
        }
    }
    const QString database = write(u"by-hand.json"_s, QString::fromUtf8(QJsonDocument(entries).toJson()).toLocal8Bit());
    const ProgramResult result =
        runProgram(u"cppcheck"_s,
                   QStringList{u"-q"_s, u"--inline-suppr"_s, u"--project="_s + database,
                               u"--template={file}:{line}:{column}: {severity}: {message} [{id}]"_s} +
                       (options.isEmpty() ? QStringList{checks} : options),
                   environment(), path(u"bin"_s));
    QStringList lines = sortedLines(result.errors);
    for (QString& line : lines) {
        const qsizetype place = line.indexOf(": "_L1);
        line.replace(0, place, QDir::fromNativeSeparators(line.left(place)));
    }
    return lines;
}

Variables CodeBase::environment(const Variables& more) const
{
    return Variables{{u"LC_ALL"_s, u"C.UTF-8"_s},
                     {u"HOME"_s, path()},
                     {u"PATH"_s, path(u"bin"_s) + QDir::listSeparator() + qEnvironmentVariable("PATH")}} +
           more;
}

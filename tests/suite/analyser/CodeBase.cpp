// SPDX-License-Identifier: MIT
#include "CodeBase.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView checks("--enable=warning,style,performance,portability");

} // namespace

CodeBase::CodeBase()
{
    QDir(path()).mkpath(u"bin"_s);
    for (const auto& name :
         {u"orv"_s, u"orvc"_s, u"orvcpp"_s, u"orvreport"_s, u"orvcount"_s, u"orvcma"_s, u"orvstatus"_s}) {
        QFile::link(QStringLiteral(ORVTOOL), path(u"bin/"_s + name));
    }
}

QString CodeBase::write(const QString& name, const QByteArray& contents) const
{
    QDir().mkpath(QFileInfo(path(name)).absolutePath());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("cannot write %s", qPrintable(name));
    }
    return file.fileName();
}

QByteArray CodeBase::read(const QString& name) const
{
    QFile file(QDir::isAbsolutePath(name) ? name : path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CodeBase::touch(const QString& name) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(QDateTime::currentDateTime(), QFile::FileModificationTime)) {
        qFatal("cannot touch %s", qPrintable(name));
    }
}

void CodeBase::replaceProgram(const QString& name, const QByteArray& script) const
{
    QFile::setPermissions(write(u"bin/"_s + name, "#!/bin/sh\n" + script),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
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
        QString lines = part.options;
        for (const QString& define : part.defines) {
            lines += u"-d "_s + define + u'\n';
        }
        for (const QString& name : part.undefines) {
            lines += u"*orv undefine="_s + name + u'\n';
        }
        for (const QString& each : part.includeFolders) {
            lines += u"-i \""_s + path(each) + u"\"\n"_s;
        }
        lines += part.standard.isEmpty() ? QString() : u"*orv standard="_s + part.standard + u'\n';
        const QString options = write(u"options/%1.p_a"_s.arg(i), lines.toUtf8());
        text += u"StartSubProjectMarker\n"_s + body(part.folder, options, part.files.join(u'\n') + u'\n') +
                u"EndSubProjectMarker\n"_s;
    }
    write(u"p.prj"_s, (text + u"EndOfProjectFile\n"_s).toUtf8());
}

ProgramResult CodeBase::run(const QString& command, const QString& tool, const Variables& more) const
{
    return runProgram(path(u"bin/"_s + tool), QProcess::splitCommand(command), environment(more), path());
}

QStringList CodeBase::analysedIn(const ProgramResult& result)
{
    static const QRegularExpression status(u"^\\[\\d+/\\d+\\] (.*)$"_s, QRegularExpression::MultilineOption);
    QStringList names;
    for (auto match = status.globalMatch(result.output); match.hasNext();) {
        names += match.next().captured(1);
    }
    names.sort();
    return names;
}

QStringList CodeBase::messages() const
{
    QByteArray text;
    for (QDirIterator files(path(u"out"_s), {u"*.err"_s}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         files.hasNext();) {
        text += read(files.next());
    }
    return sortedLines(text);
}

QStringList CodeBase::messagesByHand(const QList<CodePart>& parts, const QStringList& options) const
{
    QJsonArray entries;
    for (const CodePart& part : parts) {
        QStringList arguments{u"c++"_s};
        for (const QString& define : part.defines) {
            // As CMake writes it. Of the other form, a list of words, cppcheck loses these quotes.
            arguments += u"-D"_s + QString(define).replace(u'"', u"\\\""_s);
        }
        for (const QString& name : part.undefines) {
            arguments += u"-U"_s + name;
        }
        for (const QString& each : part.includeFolders) {
            arguments += u"-I"_s + path(each);
        }
        arguments += part.standard.isEmpty() ? QStringList() : QStringList{u"-std="_s + part.standard};
        for (const QString& file : part.files) {
            entries += QJsonObject{{u"directory"_s, path(part.folder)},
                                   {u"file"_s, file},
                                   {u"command"_s, (arguments + QStringList{u"-c"_s}).join(u' ')}};
        }
    }
    const QString database = write(u"by-hand.json"_s, QJsonDocument(entries).toJson());
    const ProgramResult result =
        runProgram(u"cppcheck"_s,
                   QStringList{u"-q"_s, u"--inline-suppr"_s, u"--project="_s + database,
                               u"--template={file}:{line}:{column}: {severity}: {message} [{id}]"_s} +
                       (options.isEmpty() ? QStringList{checks} : options),
                   environment({}), path(u"bin"_s));
    return sortedLines(result.errors.toUtf8());
}

QStringList CodeBase::sortedLines(const QByteArray& text)
{
    QStringList lines = QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
    lines.sort();
    lines.removeDuplicates();
    return lines;
}

Variables CodeBase::environment(const Variables& more) const
{
    return Variables{{u"LC_ALL"_s, u"C.UTF-8"_s},
                     {u"HOME"_s, path()},
                     {u"PATH"_s, path(u"bin"_s) + u':' + qEnvironmentVariable("PATH")}} +
           more;
}

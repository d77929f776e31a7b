// SPDX-License-Identifier: MIT
#include "ProjectWriter.h"
#include "Arguments.h"
#include "FileSet.h"
#include "OwnedFile.h"
#include "PersonalityFiles.h"
#include "ProjectText.h"
#include "Sources.h"

#include <QDir>
#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView logHead("What the conversion to this project leaves out, how often, and where first\n");

QByteArray logText(const ConversionLog& log)
{
    QByteArray text;
    for (const ConversionLog::Entry& entry : log.entries()) {
        if (entry.count > 0) {
            text += '\n' + entry.text.toUtf8() + ": " + QByteArray::number(entry.count) + '\n';
            for (const QString& place : entry.places) {
                text += "    " + place.toUtf8() + '\n';
            }
        }
    }
    return text.isEmpty() ? text : logHead.toByteArray() + text;
}

// An analyser notes in the project when it has analysed it.
QByteArray withoutNotes(QByteArray text)
{
    static constexpr QByteArrayView note("\n*lastAnalysis=");
    for (qsizetype at = text.indexOf(note); at >= 0; at = text.indexOf(note, at)) {
        const qsizetype end = text.indexOf('\n', at + 1);
        text.remove(at, (end < 0 ? text.size() : end) - at);
    }
    return text;
}

bool isSameProject(const QString& path, const QByteArray& text)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && withoutNotes(file.readAll()) == text;
}

QStringList removeStale(const QString& folder, const QStringList& current)
{
    const QSet<QString> needed(current.begin(), current.end());
    QStringList kept;
    const QDir place(folder);
    for (const QString& name : place.entryList({u"*~*.p_a"_s, u"*~*.p_c"_s}, QDir::Files)) {
        const QString path = place.filePath(name);
        if (needed.contains(path) || !OwnedFile::isOurs(path)) {
            continue;
        }
        if (OwnedFile::userPart(path).trimmed().isEmpty()) {
            QFile::remove(path);
        } else {
            kept += path;
        }
    }
    QFile log(place.filePath(u"conversion.log"_s));
    if (!needed.contains(log.fileName()) && log.open(QIODevice::ReadOnly) && log.readLine() == logHead) {
        log.remove();
    }
    // Only when nothing is left in it.
    QDir().rmdir(folder);
    return kept;
}

} // namespace

WrittenProject writeProject(const ProjectTree& tree, const Sources& sources,
                            const QHash<int, CompilerPersonality>& compilers, const Arguments& arguments)
{
    WrittenProject written;
    FileSet files;
    PersonalityFiles personalities(arguments, sources, compilers);
    personalities.add(tree, files);
    if (const QByteArray log = logText(sources.log); !log.isEmpty()) {
        written.logFile = personalities.folder() + u"/conversion.log"_s;
        files.add(written.logFile, log);
    }
    const QByteArray text = ProjectText(arguments, personalities).of(tree);
    if (isSameProject(arguments.output, text)) {
        files.keep(arguments.output);
    } else {
        files.add(arguments.output, text);
    }
    files.commit();
    written.changedFiles = files.written();
    written.unusedFiles = removeStale(personalities.folder(), files.paths());
    return written;
}

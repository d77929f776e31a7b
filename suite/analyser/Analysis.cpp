// SPDX-License-Identifier: MIT
#include "Analysis.h"
#include "OptionFiles.h"

#include "project/Project.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QStringList analyserArguments(const ToolOptions& options, const QString& source, bool forC)
{
    QStringList arguments{u"--quiet"_s, u"--inline-suppr"_s, u"--enable=warning,style,performance,portability"_s,
                          u"--template={file}:{line}: {severity}: {message} [{id}]"_s};
    arguments += forC ? u"--language=c"_s : u"--language=c++"_s;
    for (const QString& define : options.defines) {
        arguments += u"-D"_s + define;
    }
    for (const QString& folder : options.includeFolders) {
        // The system's headers cost minutes and bring no message about the project.
        if (!folder.startsWith("/usr/"_L1)) {
            arguments += u"-I"_s + folder;
        }
    }
    arguments += source;
    return arguments;
}

bool write(const QString& name, const QByteArray& contents)
{
    QSaveFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.commit();
}

QByteArray measures(const QString& source, const QByteArray& messages, bool forC)
{
    QFile file(source);
    const qsizetype lines = file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
    return (forC ? "<S>STBUG " : "<S>STWMC ") + QByteArray::number(messages.count('\n')) + "\n<S>STLIN " +
           QByteArray::number(lines) + '\n';
}

bool analyse(const QString& source, const QString& output, const ToolOptions& options, bool forC)
{
    std::printf("%s\n", qPrintable(source));
    std::fflush(stdout);
    QDir().mkpath(QFileInfo(output).absolutePath());
    QProcess analyser;
    analyser.start(u"cppcheck"_s, analyserArguments(options, source, forC));
    if (!analyser.waitForFinished(-1) || analyser.exitStatus() != QProcess::NormalExit || analyser.exitCode() != 0) {
        std::fprintf(stderr, "%s: %s\n%s", qPrintable(source), qPrintable(analyser.errorString()),
                     analyser.readAll().constData());
        return false;
    }
    const QByteArray messages = analyser.readAllStandardError();
    if (!write(output + u".err"_s, messages) || !write(output + u".met"_s, measures(source, messages, forC))) {
        std::fprintf(stderr, "%s: its results can not be written\n", qPrintable(output));
        return false;
    }
    return true;
}

int analyseList(const ToolOptions& options, bool forC)
{
    int failed = 0;
    for (const ToolOptions::Source& source : options.sources) {
        const QString output = source.outputFolder + u'/' + QFileInfo(source.path).fileName();
        failed += int(!analyse(source.path, output, options, forC));
    }
    return failed;
}

QByteArray analyserVersion()
{
    QProcess analyser;
    analyser.start(u"cppcheck"_s, {u"--version"_s});
    return analyser.waitForFinished() ? analyser.readAllStandardOutput().trimmed() : QByteArray();
}

// The project tells what it was analysed with; its other lines stay as they are.
void noteAnalysis(const QString& projectFile)
{
    QFile old(projectFile);
    const QByteArray version = analyserVersion();
    if (version.isEmpty() || !old.open(QIODevice::ReadOnly)) {
        return;
    }
    QByteArray text;
    bool isNoted = false;
    while (!old.atEnd()) {
        const QByteArray line = old.readLine();
        if (line.startsWith("*lastAnalysis=")) {
            continue;
        }
        // Read at the end of the files at the latest.
        if (!isNoted && line.startsWith("EndContainedFilesMarker")) {
            text += "*lastAnalysis=" + version + '\n';
            isNoted = true;
        }
        text += line;
    }
    if (isNoted && !write(projectFile, text)) {
        std::fprintf(stderr, "%s: can not be written\n", qPrintable(projectFile));
    }
}

int analyseProject(const ToolOptions& options, bool forC)
{
    const Project project(options.projectFile);
    if (!project.statusOk) {
        throw QString(options.projectFile + u": "_s + project.statusText);
    }
    int failed = 0;
    project.root.visitProjects([&](const ProjectData& part) {
        for (const SourceEntry& entry : part.files) {
            if (QFile::exists(entry.sourcePath()) && !entry.isUpToDate()) {
                const QString output = part.outputFolder() + u'/' + entry.fileName().toString();
                failed += int(!analyse(entry.sourcePath(), output, options, forC));
            }
        }
        return false;
    });
    if (failed == 0) {
        noteAnalysis(options.projectFile);
    }
    return failed;
}

} // namespace

int analyseSources(const ToolOptions& options, bool forC)
{
    if (!options.projectFile.isEmpty()) {
        return analyseProject(options, forC);
    }
    if (options.sources.isEmpty()) {
        throw u"nothing to analyse: give a project with -prj or sources with -list"_s;
    }
    return analyseList(options, forC);
}

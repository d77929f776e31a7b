// SPDX-License-Identifier: MIT
#include "Analysis.h"
#include "OptionFiles.h"

#include "project/Project.h"

#include <QDir>
#include <QFile>
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

bool analyse(const SourceEntry& entry, const ToolOptions& options, bool forC)
{
    QDir().mkpath(entry.owner().outputFolder());
    QProcess analyser;
    analyser.start(u"cppcheck"_s, analyserArguments(options, entry.sourcePath(), forC));
    if (!analyser.waitForFinished(-1) || analyser.exitStatus() != QProcess::NormalExit || analyser.exitCode() != 0) {
        std::fprintf(stderr, "%s: %s\n%s", qPrintable(entry.sourcePath()), qPrintable(analyser.errorString()),
                     analyser.readAll().constData());
        return false;
    }
    const QByteArray messages = analyser.readAllStandardError();
    return write(entry.errorPath(), messages) &&
           write(entry.metricsPath(), measures(entry.sourcePath(), messages, forC));
}

} // namespace

int analyseProject(const ToolOptions& options, bool forC)
{
    const Project project(options.projectFile);
    if (!project.statusOk) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(options.projectFile), qPrintable(project.statusText));
        return 1;
    }
    int failed = 0;
    project.root.visitProjects([&](const ProjectData& part) {
        for (const SourceEntry& entry : part.files) {
            if (QFile::exists(entry.sourcePath()) && !entry.isUpToDate()) {
                std::printf("%s\n", qPrintable(entry.sourcePath()));
                std::fflush(stdout);
                failed += int(!analyse(entry, options, forC));
            }
        }
        return false;
    });
    return failed;
}

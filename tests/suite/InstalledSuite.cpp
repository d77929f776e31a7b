// SPDX-License-Identifier: MIT
#include "InstalledSuite.h"

#include <QDirIterator>
#include <QProcess>

using namespace Qt::StringLiterals;

#ifdef Q_OS_WIN

// scripts/windows/test has had it installed; a test may change its own copy.
InstalledSuite::InstalledSuite()
{
    const QDir source(QStringLiteral(INSTALLED_SUITE));
    if (!source.exists(u"bin"_s)) {
        qFatal("the suite is not installed in %s", qPrintable(source.path()));
    }
    for (QDirIterator files(source.path(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString target = path(source.relativeFilePath(files.next()));
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(files.filePath(), target);
    }
}

QString InstalledSuite::program() const
{
    return path(u"bin/ProjectCreation.com"_s);
}

#else

InstalledSuite::InstalledSuite()
{
    // As in a build folder whose parts lie elsewhere.
    QDir().mkpath(path(u"build"_s));
    for (const auto& part : {u"/bin"_s, u"/help"_s}) {
        QFile::link(QStringLiteral(BUILD_FOLDER) + part, path(u"build"_s) + part);
    }
    const QStringList arguments{path(u"."_s), u"--build-dir"_s, path(u"build"_s)};
    if (runProgram(QStringLiteral(INSTALL_SUITE), arguments).status != 0) {
        qFatal("the suite can not be installed");
    }
}

QString InstalledSuite::program() const
{
    return path(u"create-project"_s);
}

#endif

ProgramResult InstalledSuite::run(const QString& command) const
{
    return runProgram(program(), QProcess::splitCommand(u"-batch "_s + command), {}, path(u"work"_s));
}

// SPDX-License-Identifier: MIT
// Loading a project of 100,000 files with its status, against one stat of each source and its two output files.
#include "app/AppRegistry.h"
#include "project/Project.h"
#include "Ratio.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

bool touch(const QString& name)
{
    return QFile(name).open(QIODevice::WriteOnly);
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "TMPDIR"}) {
        qputenv(name, home.path().toLocal8Bit());
    }
    const QCoreApplication application(argc, argv);
    AppRegistry registry;
    appRegistry = &registry;
    constexpr int folders = 200;
    constexpr int filesPerFolder = 500;
    QByteArray text = "VersionTag 1\n";
    std::vector<QByteArray> names;
    for (int i = 0; i < folders; ++i) {
        const QString sources = home.filePath(u"src/module%1"_s.arg(i));
        const QString outputs = home.filePath(u"out/module%1"_s.arg(i));
        QDir().mkpath(sources);
        QDir().mkpath(outputs);
        text += "StartProjectMarker\nname=m\nsourceDir=" + sources.toUtf8() + "\noutputDir=" + outputs.toUtf8() +
                "\nm=default string\na=default string\nc=default string\n";
        for (int j = 0; j < filesPerFolder; ++j) {
            const QString name = u"translation_unit_%1.cpp"_s.arg(j);
            const QString output = outputs + u'/' + name;
            text += name.toUtf8() + '\n';
            for (const QString& file : {sources + u'/' + name, output + u".met"_s, output + u".err"_s}) {
                names.push_back(QFile::encodeName(file));
                // Every second file has been analysed.
                if ((j % 2 == 0 || file.endsWith(u".cpp")) && !touch(file)) {
                    return 1;
                }
            }
        }
        text += "EndContainedFilesMarker\n";
        if (i == 0) {
            text += "StartSubProjectMarker\n";
        }
    }
    const QString file = home.filePath(u"p.prj"_s);
    QFile project(file);
    if (!project.open(QIODevice::WriteOnly) || project.write(text + "end\n") < 0) {
        return 1;
    }
    project.close();

    int loaded = 0;
    const auto ours = [&] { loaded = Project(file).root.fileCount(); };
    int found = 0;
    const auto bare = [&] {
        for (const QByteArray& name : names) {
            struct stat facts = {};
            found += int(::stat(name.constData(), &facts) == 0);
        }
    };
    const int result = Ratio::report("loading a project of 100000 files with its status", 1.5, ours, bare);
    return loaded == folders * filesPerFolder && found > 0 ? result : 1;
}

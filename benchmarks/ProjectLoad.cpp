// SPDX-License-Identifier: MIT
// Loading a project of 100,000 files with its status, against one stat of each source and its two output files.
#include "LargeProject.h"
#include "project/Project.h"
#include "Ratio.h"
#include "Sandbox.h"

#include <QCoreApplication>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const Sandbox sandbox;
    const QCoreApplication application(argc, argv);
    LargeProject large;
    if (!large.create(sandbox.path(u"project"_s))) {
        return 1;
    }
    int loaded = 0;
    const auto ours = [&] { loaded = Project(large.projectFile).root.fileCount(); };
    int found = 0;
    const auto bare = [&] {
        for (const auto* names : {&large.sources, &large.outputs}) {
            for (const QByteArray& name : *names) {
                struct stat facts = {};
                found += int(::stat(name.constData(), &facts) == 0);
            }
        }
    };
    const int result = Ratio::report("loading a project of 100000 files with its status", 1.5, ours, bare);
    return loaded == LargeProject::folders * LargeProject::filesPerFolder && found > 0 ? result : 1;
}

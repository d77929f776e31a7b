// SPDX-License-Identifier: MIT
// Loading a project of 1,000,000 files with its status, against one stat of each source and its two output files.
#include "LargeProject.h"
#include "project/Project.h"
#include "Ratio.h"
#include "Sandbox.h"

#include <QCoreApplication>

#include <memory>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const Sandbox sandbox;
    const QCoreApplication application(argc, argv);
    const int files = Ratio::sizeFrom(argc, argv, 1'000'000);
    LargeProject large;
    if (!large.create(sandbox.path(u"project"_s), files)) {
        return 1;
    }
    std::unique_ptr<Project> kept;
    const long bytes = Ratio::bytesOf([&] { kept = std::make_unique<Project>(large.projectFile); });
    kept.reset();
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
    const QByteArray name = "loading a project of " + QByteArray::number(files) + " files with its status";
    const auto [ms, missed] = Ratio::measure(name.constData(), 1.0, ours, bare);
    Ratio::reportCost(files, ms, bytes);
    constexpr long mostBytes = 250;
    if (bytes / files > mostBytes) {
        std::printf("  that is more than %ld bytes a file MISSED\n", mostBytes);
        return 1;
    }
    return loaded == files && found > 0 ? missed : 1;
}

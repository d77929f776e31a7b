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
    bool isGood = true;
    const auto ours = [&] { isGood = isGood && Project(large.projectFile).root.fileCount() == files; };
    const auto bare = [&] {
        std::size_t found = 0;
        for (const auto* names : {&large.sources, &large.outputs}) {
            for (const QByteArray& name : *names) {
                struct stat facts = {};
                found += std::size_t(::stat(name.constData(), &facts) == 0);
            }
        }
        // Every source, and what every second one left behind.
        isGood = isGood && found == large.sources.size() * 2;
    };
    const QByteArray name = "loading a project of " + QByteArray::number(files) + " files with its status";
    const Ratio::Outcome outcome = Ratio::measure(name.constData(), 1.0, ours, bare);
    Ratio::reportCost(files, outcome, bytes);
    constexpr long mostBytes = 250;
    if (bytes / files > mostBytes) {
        std::printf("  that is more than %ld bytes a file MISSED\n", mostBytes);
        return 1;
    }
    return isGood ? outcome.missed : 1;
}

// SPDX-License-Identifier: MIT
// Option and list file of a project of 1,000,000 files, against the same stats and one write of the list.
#include "app/TemporaryFiles.h"
#include "LargeProject.h"
#include "project/OptionSources.h"
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
    TemporaryFiles files;
    const OptionSources sources{[&](const QString& suffix) { return files.create(suffix); }, {}};
    const int size = Ratio::sizeFrom(argc, argv, 1'000'000);
    LargeProject large;
    if (!large.create(sandbox.path(u"project"_s), size)) {
        return 1;
    }
    Project project(large.projectFile);
    QByteArray list;
    const auto ours = [&] {
        const auto arguments = project.expandLauncherArguments({u"%L"_s}, u"ORVC"_s, {}, sources);
        QFile file(arguments.value.first());
        list = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const long bytes = Ratio::bytesOf(ours);
    int found = 0;
    const auto bare = [&] {
        for (const QByteArray& name : large.outputs) {
            struct stat facts = {};
            found += int(::stat(name.constData(), &facts) == 0);
        }
        QFile file(sandbox.path(u"list"_s));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(list);
        }
    };
    const QByteArray name = "option and list file for " + QByteArray::number(size) + " files";
    const Ratio::Outcome outcome = Ratio::measure(name.constData(), 0.8, ours, bare);
    Ratio::reportCost(size, outcome, bytes);
    return found > 0 && list.count(".cpp\"\n") == size / 2 ? outcome.missed : 1;
}

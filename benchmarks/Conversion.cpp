// SPDX-License-Identifier: MIT
#include "Ratio.h"
#include "Sandbox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int folderCount = 500;
constexpr int includesPerEntry = 40;
constexpr long mostKilobytes = 1024L * 1024;

QByteArray folderName(const QByteArray& base, int number)
{
    return base + "/module" + QByteArray::number(number % folderCount);
}

// A database of sources that exist, each with 40 include folders; a folder has one set of options.
bool create(const QString& place, const QString& database, int entryCount)
{
    const QByteArray base = QFile::encodeName(place);
    for (int i = 0; i < folderCount; ++i) {
        if (!QDir().mkpath(QFile::decodeName(folderName(base, i)) + u"/src"_s)) {
            return false;
        }
    }
    QFile file(database);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write("[\n");
    for (int i = 0; i < entryCount; ++i) {
        const int folder = i / (entryCount / folderCount);
        const QByteArray source = folderName(base, folder) + "/src/unit" + QByteArray::number(i) + ".cpp";
        const QByteArray object =
            "CMakeFiles/module" + QByteArray::number(folder) + ".dir/unit" + QByteArray::number(i) + ".cpp.o";
        QByteArray command = "/usr/bin/c++ -DNDEBUG -DMODULE=" + QByteArray::number(folder);
        for (int k = 0; k < includesPerEntry; ++k) {
            command += " -I" + folderName(base, folder + k) + "/include";
        }
        command += " -std=gnu++17 -o " + object + " -c " + source;
        file.write((i == 0 ? "{\"directory\": \"" : ",\n{\"directory\": \"") + base + "/build\", \"command\": \"" +
                   command + "\", \"file\": \"" + source + "\", \"output\": \"" + object + "\"}");
        if (!QFile(QFile::decodeName(source)).open(QIODevice::WriteOnly)) {
            return false;
        }
    }
    return file.write("\n]\n") > 0 && file.flush();
}

long peakOfChildren()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_maxrss;
}

} // namespace

// usage: bench_conversion PRJCONV [ENTRIES]
int main(int argc, char** argv)
{
    const Sandbox sandbox;
    const QCoreApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_conversion PRJCONV [ENTRIES]\n");
        return 2;
    }
    const int entries = Ratio::sizeFrom(argc, argv, 500'000, 2);
    const QString database = sandbox.path(u"compile_commands.json"_s);
    if (!create(sandbox.path(u"tree"_s), database, entries)) {
        std::fprintf(stderr, "the database can not be written\n");
        return 1;
    }
    bool isGood = true;
    const auto parse = [&] {
        QFile file(database);
        isGood = isGood && file.open(QIODevice::ReadOnly) &&
                 QJsonDocument::fromJson(file.readAll()).array().size() == entries;
    };
    const auto convert = [&] {
        QProcess converter;
        converter.setStandardOutputFile(QProcess::nullDevice());
        converter.start(QString::fromLocal8Bit(argv[1]),
                        {u"--compile-commands"_s, database, u"--output"_s, sandbox.path(u"p.prj"_s), u"--analyser"_s,
                         u"ORVCPP"_s, u"--options"_s, u"sub-projects"_s});
        isGood = isGood && converter.waitForFinished(-1) && converter.exitCode() == 0;
    };
    // Before the other side takes memory, which a child would begin with.
    convert();
    const long peak = peakOfChildren();
    const QByteArray name = "converting " + QByteArray::number(entries) + " entries of 40 include folders";
    const Ratio::Outcome outcome = Ratio::measure(name.constData(), 1.5, convert, parse);
    Ratio::reportCost(entries, outcome, peak * 1024);
    std::printf("its memory: %ld MiB (at most %ld MiB) %s\n", peak / 1024, mostKilobytes / 1024,
                peak <= mostKilobytes ? "ok" : "MISSED");
    return isGood && outcome.missed == 0 && peak <= mostKilobytes ? 0 : 1;
}
